#pragma once

#include <QWidget>

namespace horavex {

/// Gives the window the access keys of what lies on pages that are not in front, for the toolkit
/// gives those to nobody: such a key shows the page and does there what it does in front. A key
/// that something on view has stays with that; of several pages the first has it. To be called
/// again when captions change.
void GivePageKeys(QWidget& window);

/// Gives them anew whenever the user or the form turns to another page.
void BindPageKeys(QWidget& window);

}  // namespace horavex
