#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <string>

namespace horavex {

/// Fills an empty window with the widgets of a form.
using Layout = std::function<void(QWidget&)>;

/// By the form's name.
using Layouts = std::map<std::string, Layout>;

/// Those that are drawn up in desktop/forms. They hold widgets and no texts: every text comes
/// from the form.
Layouts DrawnLayouts();

}  // namespace horavex
