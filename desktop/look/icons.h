#pragma once

#include <QIcon>
#include <QString>

namespace horavex::look {

/// A drawing of data/art by its name, sharp at every size and as large as fits into the middle of
/// what it is painted on. One without colours of its own has those of a text of the present theme,
/// but signs of messages those of what they tell. Empty for a name that there is none of.
QIcon IconOf(const QString& name);

}  // namespace horavex::look
