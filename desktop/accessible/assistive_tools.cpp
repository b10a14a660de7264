#include "desktop/accessible/assistive_tools.h"

#include <QAccessibleWidget>

#include "desktop/accessible/accessible_times.h"
#include "desktop/face/compass.h"
#include "desktop/face/times_view.h"

namespace horavex {

namespace {

/// A window of the program: a frame, or a dialogue while it shuts off the others.
class AccessibleWindow : public QAccessibleWidget {
public:
    explicit AccessibleWindow(QWidget& window) : QAccessibleWidget(&window) {}

    QAccessible::Role role() const override {
        return widget()->isModal() ? QAccessible::Dialog : QAccessible::Window;
    }
};

/// The toolkit asks for a widget's own class first and then for those that it derives from; the
/// program's classes all answer to the name of the class that they derive from.
QAccessibleInterface* MakeAccessible(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (className != QLatin1String("QWidget") || widget == nullptr) {
        return nullptr;
    }
    if (auto* times = dynamic_cast<TimesView*>(widget)) {
        return new AccessibleTimes(*times);
    }
    if (dynamic_cast<Compass*>(widget) != nullptr) {
        return new QAccessibleWidget(widget, QAccessible::Graphic);
    }
    return widget->isWindow() ? new AccessibleWindow(*widget) : nullptr;
}

}  // namespace

void TellAssistiveTools() {
    QAccessible::installFactory(MakeAccessible);
}

}  // namespace horavex
