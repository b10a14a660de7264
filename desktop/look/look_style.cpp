#include "desktop/look/look_style.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFontInfo>
#include <QMenu>
#include <QPainter>
#include <QSlider>
#include <QTabBar>
#include <QWidget>
#include <algorithm>

#include "desktop/look/icons.h"
#include "desktop/look/look.h"
#include "desktop/look/measures.h"
#include "desktop/look/menu_parts.h"
#include "desktop/look/text_lines.h"

namespace horavex::look {

namespace {

bool HasEdge(QStyle::PrimitiveElement element) {
    switch (element) {
        case QStyle::PE_Frame:
        case QStyle::PE_FrameLineEdit:
        case QStyle::PE_IndicatorCheckBox:
        case QStyle::PE_IndicatorRadioButton:
        case QStyle::PE_PanelButtonCommand:
            return true;
        default:
            return false;
    }
}

/// The part of a control that is taken hold of; none for one without an edge.
QStyle::SubControl PartWithEdge(QStyle::ComplexControl control) {
    switch (control) {
        case QStyle::CC_ComboBox:
            return QStyle::SC_ComboBoxFrame;
        case QStyle::CC_SpinBox:
            return QStyle::SC_SpinBoxFrame;
        case QStyle::CC_ScrollBar:
            return QStyle::SC_ScrollBarSlider;
        default:
            return QStyle::SC_None;
    }
}

/// The sign of the program's own set that stands for one of the toolkit's; empty for none.
QString NameOf(QStyle::StandardPixmap picture, Qt::LayoutDirection direction) {
    const bool goesRight = direction == Qt::LeftToRight;
    switch (picture) {
        case QStyle::SP_MessageBoxInformation:
            return QStringLiteral("information");
        case QStyle::SP_MessageBoxWarning:
            return QStringLiteral("warning");
        case QStyle::SP_MessageBoxCritical:
            return QStringLiteral("critical");
        case QStyle::SP_ArrowBack:
            return goesRight ? QStringLiteral("back") : QStringLiteral("forward");
        case QStyle::SP_ArrowForward:
            return goesRight ? QStringLiteral("forward") : QStringLiteral("back");
        case QStyle::SP_DirIcon:
        case QStyle::SP_DirOpenIcon:
        case QStyle::SP_DirClosedIcon:
            return QStringLiteral("folder");
        case QStyle::SP_FileDialogNewFolder:
            return QStringLiteral("new-folder");
        case QStyle::SP_FileDialogToParent:
            return QStringLiteral("up");
        case QStyle::SP_FileIcon:
            return QStringLiteral("file");
        default:
            return {};
    }
}

Qt::LayoutDirection DirectionFor(const QStyleOption* option) {
    return option == nullptr ? QGuiApplication::layoutDirection() : option->direction;
}

constexpr double kCorner = 2.0;  // radius
constexpr int kChosenLine = 3;   // along the outer edge of the chosen tab, pixels
constexpr int kGroupMargin = 3;  // between the frame of a group and its contents, pixels
constexpr int kRing = 2;         // around what has the keyboard, pixels
constexpr int kTick = 4;         // length of a slider's marks, pixels
constexpr int kHeadShift = 3;    // of the head of a column, to stand over its cells, pixels

/// The button that Enter presses.
bool IsDefault(const QStyleOption& option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

/// Twice as thick around what has the keyboard: another colour alone would hardly be seen where
/// edges are black or white.
void DrawEdge(const QStyleOption& option, QPainter& painter, const QRect& rect, double corner) {
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
    const Role role = hasFocus || IsDefault(option) ? Role::kMarked : Role::kEdge;
    const double width = hasFocus ? kRing : 1.0;
    const double inside = width / 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ColourOf(ThemeOf(option.palette), role), width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect).adjusted(inside, inside, -inside, -inside), corner,
                            corner);
    painter.restore();
}

/// The toolkit makes its edges of darker shades of the ground, which are lost where that is dark.
bool WantsEdges(const QStyleOption& option) {
    return (ThemeOf(option.palette) != Theme::kLight || IsDefault(option) ||
            option.state.testFlag(QStyle::State_HasFocus)) &&
           HasOurColours(option.palette);
}

/// The chosen tab has a line that tells it without the keyboard, too.
void DrawChosenLine(const QStyleOption& tab, QPainter& painter) {
    painter.fillRect(tab.rect.left(), tab.rect.top(), tab.rect.width(), kChosenLine,
                     ColourOf(ThemeOf(tab.palette), Role::kMarked));
}

/// The lower edge of a tab is that of its page.
void DrawTabEdges(const QStyleOption& tab, QPainter& painter) {
    painter.save();
    painter.setClipRect(tab.rect);
    if (WantsEdges(tab)) {
        DrawEdge(tab, painter, tab.rect.adjusted(0, 0, 0, 2), kCorner);
    }
    if (tab.state.testFlag(QStyle::State_Selected) && HasOurColours(tab.palette)) {
        DrawChosenLine(tab, painter);
    }
    painter.restore();
}

/// Where a bar is done, in the direction of reading.
QRect DonePart(const QStyleOptionProgressBar& bar) {
    const int whole = std::max(1, bar.maximum - bar.minimum);
    QRect done = bar.rect;
    done.setWidth(int(double(bar.rect.width()) * (bar.progress - bar.minimum) / whole));
    const bool goesLeft = (bar.direction == Qt::RightToLeft) != bar.invertedAppearance;
    return goesLeft
               ? QRect(bar.rect.right() - done.width() + 1, done.y(), done.width(), done.height())
               : done;
}

/// The toolkit takes its colours the wrong way round where one reads from the right.
void DrawProgressText(const QStyleOptionProgressBar& bar, QPainter& painter) {
    if (!bar.textVisible) {
        return;
    }
    const QRect done = DonePart(bar);
    const auto draw = [&](QPalette::ColorRole role, const QRegion& part) {
        painter.setClipRegion(part);
        painter.setPen(bar.palette.color(role));
        painter.drawText(bar.rect, Qt::AlignCenter | Qt::TextSingleLine, bar.text);
    };
    painter.save();
    draw(QPalette::HighlightedText, done);
    draw(QPalette::Text, QRegion(bar.rect) - done);
    painter.restore();
}

/// In the direction of its box: the toolkit would write it from the left, and turn a name in Latin
/// letters out of its brackets. And with the current choice cut before the end of a box that is too
/// narrow for it, so that this is seen.
QStyleOptionComboBox ShortenedIn(int room, QStyleOptionComboBox box) {
    box.currentText = box.fontMetrics.elidedText(box.currentText, Qt::ElideRight, room);
    if (box.direction == Qt::RightToLeft) {
        box.currentText = QChar(0x2067) + box.currentText + QChar(0x2069);
    }
    return box;
}

/// Of the letters beside a sign, in pixels.
int LetterSize(const QWidget* widget) {
    return QFontInfo(widget == nullptr ? QApplication::font() : widget->font()).pixelSize();
}

/// A list, a table or a text.
bool HoldsScrolled(const QWidget* widget) {
    return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

}  // namespace

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return widget != nullptr && widget->isWindow() ? kWindowMargin : kMargin;
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return kSpacing;
        case PM_FocusFrameHMargin:
            return kCellMargin;
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return std::max(usual, LetterSize(widget));
        case PM_ButtonIconSize:
            return std::max(usual, LetterSize(widget) * 6 / 5);
        case PM_DefaultFrameWidth:  // what is scrolled would lie over the half of the ring
            return HoldsScrolled(widget) ? kRing : usual;
        default:
            return usual;
    }
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* answer) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons || hint == SH_EtchDisabledText) {
        return 0;
    }
    if (hint == SH_Widget_Animation_Duration && !MotionIsAllowed()) {
        return 0;
    }
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type == CT_HeaderSection) {
        return whole + QSize(2 * kHeadShift, 0);
    }
    if (type == CT_MenuItem && entry != nullptr) {
        return WithRoomForMarks(whole, *entry);
    }
    const bool hasWords = type == CT_PushButton && button != nullptr && !button->text.isEmpty();
    return hasWords ? whole + QSize(kButtonPadding, 0) : whole;
}

// Of what runs from the right the toolkit draws a line that ends in a blank so much further left.
void LookStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                             const QPalette& palette, bool enabled, const QString& text,
                             QPalette::ColorRole role) const {
    const bool breaks = (flags & Qt::TextWordWrap) != 0 && text.isRightToLeft();
    const bool isOneLine = (flags & Qt::AlignVCenter) != 0 && (flags & Qt::TextWordWrap) == 0;
    const QString lines = breaks ? InLines(text, painter->font(), rect.width()) : text;
    const int lower = isOneLine ? BaselineShift(text, painter->font()) : 0;
    QProxyStyle::drawItemText(painter, rect.translated(0, lower),
                              breaks ? flags & ~Qt::TextWordWrap : flags, palette, enabled, lines,
                              role);
}

QIcon LookStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                              const QWidget* widget) const {
    const QString name = NameOf(picture, DirectionFor(option));
    return name.isEmpty() ? QProxyStyle::standardIcon(picture, option, widget) : IconOf(name);
}

QPixmap LookStyle::standardPixmap(StandardPixmap picture, const QStyleOption* option,
                                  const QWidget* widget) const {
    const QString name = NameOf(picture, DirectionFor(option));
    return name.isEmpty() ? QProxyStyle::standardPixmap(picture, option, widget)
                          : IconOf(name).pixmap(pixelMetric(PM_LargeIconSize, option, widget));
}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    if (element == PE_IndicatorCheckBox && qobject_cast<const QMenu*>(widget) != nullptr) {
        DrawMenuMark(*option, *painter);
        return;
    }
    if (element == PE_Frame && HoldsScrolled(widget)) {
        painter->fillRect(option->rect, option->palette.base());
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_PanelMenu) {
        if (const auto edge = EdgeOfMenu(option->palette, widget)) {
            DrawMenuFrame(option->rect, *edge, *painter);
        }
    }
    if (HasEdge(element) && WantsEdges(*option)) {
        const bool isRound = element == PE_IndicatorRadioButton;
        DrawEdge(*option, *painter, option->rect, isRound ? option->rect.width() / 2.0 : kCorner);
    }
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_Slider && slider != nullptr && WantsEdges(*option) &&
        ThemeOf(option->palette) != Theme::kLight) {
        DrawSlider(*slider, *painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_GroupBox && WantsEdges(*option)) {
        const QRect contents = subControlRect(control, option, SC_GroupBoxContents, widget);
        QRect frame = option->rect;
        frame.setTop(contents.top() - kGroupMargin);  // below the title
        DrawEdge(*option, *painter, frame, kCorner);
    }
    const SubControl part = PartWithEdge(control);
    const bool hasEdge =
        WantsEdges(*option) || (control == CC_ScrollBar && HasOurColours(option->palette));
    if (part != SC_None && hasEdge) {
        DrawEdge(*option, *painter, subControlRect(control, option, part, widget), kCorner);
    }
}

// The toolkit would write the entries of a menu that
// runs from right to left where the application's own language begins, which is the left always.
void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    if (element == CE_MenuItem) {
        painter->setLayoutDirection(option->direction);
    }
    if (element == CE_MenuItem && IsSeparator(*option)) {
        if (const auto edge = EdgeOfMenu(option->palette, widget)) {
            DrawSeparator(option->rect, *edge, *painter);
            return;
        }
    }
    const auto* head = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (element == CE_HeaderLabel && head != nullptr) {
        QStyleOptionHeader shifted = *head;
        shifted.rect.adjust(kHeadShift, 0, -kHeadShift, 0);
        QProxyStyle::drawControl(element, &shifted, painter, widget);
        return;
    }
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == CE_ItemViewItem && item != nullptr) {
        DrawItem(*item, *painter, widget);
        return;
    }
    const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (element == CE_ProgressBarLabel && bar != nullptr) {
        DrawProgressText(*bar, *painter);
        return;
    }
    const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (element == CE_ComboBoxLabel && box != nullptr) {
        const QStyleOptionComboBox shortened = ShortenedIn(ChoiceRoom(*box, widget), *box);
        QProxyStyle::drawControl(element, &shortened, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (element == CE_TabBarTabShape && tab != nullptr && tab->shape == QTabBar::RoundedNorth) {
        DrawTabEdges(*tab, *painter);
    }
}

// The row first, and its text on the baseline of all texts in the row.
void LookStyle::DrawItem(const QStyleOptionViewItem& item, QPainter& painter,
                         const QWidget* widget) const {
    const int lower = BaselineShift(item.text, item.font);
    if (lower == 0) {
        QProxyStyle::drawControl(CE_ItemViewItem, &item, &painter, widget);
        return;
    }
    QStyleOptionViewItem row = item;
    row.text.clear();
    QProxyStyle::drawControl(CE_ItemViewItem, &row, &painter, widget);
    QStyleOptionViewItem text = item;
    text.rect.translate(0, lower);
    text.state.setFlag(State_HasFocus, false);
    painter.save();
    painter.setClipRect(item.rect, Qt::IntersectClip);
    QProxyStyle::drawControl(CE_ItemViewItem, &text, &painter, widget);
    painter.restore();
}

int LookStyle::ChoiceRoom(const QStyleOptionComboBox& box, const QWidget* widget) const {
    constexpr int kAround = 2;  // that the toolkit keeps around a choice, in pixels
    const int whole = subControlRect(CC_ComboBox, &box, SC_ComboBoxEditField, widget).width();
    return whole - kAround - (box.currentIcon.isNull() ? 0 : box.iconSize.width() + 2 * kAround);
}

// The handle lies over the groove, whose edge is not that of what has the focus.
void LookStyle::DrawSlider(const QStyleOptionSlider& option, QPainter& painter,
                           const QWidget* widget) const {
    QStyleOptionSlider part = option;
    part.subControls = SC_SliderGroove;
    part.state.setFlag(State_HasFocus, false);
    QProxyStyle::drawComplexControl(CC_Slider, &part, &painter, widget);
    DrawEdge(part, painter, subControlRect(CC_Slider, &option, SC_SliderGroove, widget), kCorner);
    if (option.subControls.testFlag(SC_SliderTickmarks)) {
        DrawTicks(option, painter, widget);
    }
    part.subControls = SC_SliderHandle;
    part.state = option.state;
    QProxyStyle::drawComplexControl(CC_Slider, &part, &painter, widget);
    DrawEdge(option, painter, subControlRect(CC_Slider, &option, SC_SliderHandle, widget), kCorner);
}

void LookStyle::DrawTicks(const QStyleOptionSlider& option, QPainter& painter,
                          const QWidget* widget) const {
    const bool goesAcross = option.orientation == Qt::Horizontal;
    const int room = pixelMetric(PM_SliderSpaceAvailable, &option, widget);
    const int begin = (goesAcross ? option.rect.x() : option.rect.y()) +
                      pixelMetric(PM_SliderLength, &option, widget) / 2;
    const int step = std::max(1, option.tickInterval > 0 ? option.tickInterval : option.pageStep);
    const auto draw = [&](int along, int across) {
        painter.drawLine(goesAcross ? QLine(along, across, along, across + kTick)
                                    : QLine(across, along, across + kTick, along));
    };
    painter.setPen(ColourOf(ThemeOf(option.palette), Role::kEdge));
    for (int value = option.minimum; value <= option.maximum; value += step) {
        const int along = begin + sliderPositionFromValue(option.minimum, option.maximum, value,
                                                          room, option.upsideDown);
        if (option.tickPosition & QSlider::TicksAbove) {
            draw(along, goesAcross ? option.rect.top() : option.rect.left());
        }
        if (option.tickPosition & QSlider::TicksBelow) {
            draw(along, (goesAcross ? option.rect.bottom() : option.rect.right()) - kTick);
        }
    }
}

}  // namespace horavex::look
