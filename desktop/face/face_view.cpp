#include "desktop/face/face_view.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QShortcut>
#include <QStyleHints>
#include <utility>

#include "calendar/date_words.h"
#include "desktop/face/clock_dial.h"
#include "desktop/face/compass.h"
#include "desktop/face/countdown_line.h"
#include "desktop/face/day_arc.h"
#include "desktop/face/face_button.h"
#include "desktop/face/face_day.h"
#include "desktop/face/fitted_text.h"
#include "desktop/face/palette.h"
#include "desktop/face/text_line.h"
#include "desktop/face/times_view.h"
#include "desktop/form_window/menu.h"
#include "lang/capital.h"
#include "sky/day_sky.h"

namespace horavex {

namespace {

// All places in pixels of the face. The menus open at 50, 100, 150 and 200 across and 135 down,
// so that their buttons stand close together above that line.
constexpr QRect kFace(0, 0, 420, 500);
constexpr QRect kClock(20, 10, 84, 84);
constexpr QRect kDay(116, 2, 234, 30);  // signs over Bengali letters reach high
constexpr QRect kDate(116, 29, 234, 20);
constexpr QRect kHijriDate(116, 49, 234, 20);
constexpr QRect kPlace(108, 69, 250, 18);
constexpr QRect kClocks(108, 86, 250, 16);
constexpr QRect kMinimise(356, 10, 26, 26);
constexpr QRect kClose(384, 10, 26, 26);
constexpr QRect kMenuBand(1, 104, 418, 31);
constexpr QRect kMenu(50, 105, 350, 29);
constexpr QRect kNext(24, 138, 372, 26);
constexpr QRect kRemaining(24, 164, 372, 44);
constexpr QRect kIqama(24, 208, 372, 16);
constexpr QRect kArc(1, 224, 418, 76);
constexpr QRect kTimesCard(16, 304, 240, 184);
constexpr QRect kTimes(22, 308, 228, 144);
constexpr QRect kAllTimes(26, 454, 220, 28);
constexpr QRect kCompassCard(264, 304, 140, 184);
constexpr QRect kCompass(274, 310, 120, 142);
constexpr QRect kQibla(274, 454, 120, 28);

constexpr const char* kNextPrayer = "_root.sNextPrayer";
constexpr const char* kRemainingTime = "_root.sNextRemaining";

const TextLine::Look kDateLook{15, kCream, Qt::AlignCenter};
const TextLine::Look kPlaceLook{13, kGold, Qt::AlignCenter};
const TextLine::Look kClocksLook{12, kCream, Qt::AlignCenter};
const TextLine::Look kNextLook{21, kCream, Qt::AlignLeading | Qt::AlignVCenter};
const TextLine::Look kRemainingLook{24, kGold, Qt::AlignLeading | Qt::AlignVCenter};
const TextLine::Look kIqamaLook{13, kCream, Qt::AlignLeading | Qt::AlignVCenter};

/// A date without its weekday as a language writes it, in plain digits and with the day in front,
/// as all dates of the face: "21. November 2026".
QString Written(const QDate& date, const QLocale& language) {
    static const QRegularExpression weekday(QStringLiteral("^dddd[^dMy]*|[^dMy]*dddd$"));
    QString pattern = language.dateFormat(QLocale::LongFormat).remove(weekday);
    if (!pattern.startsWith(u'd')) {
        pattern = QStringLiteral("d MMMM yyyy");
    }
    static const QRegularExpression day(QStringLiteral("^d+"));
    static const QRegularExpression comma(QStringLiteral("[,\u060c](?= yyyy)"));
    const auto quoted = [](const QString& text) { return u'\'' + text + u'\''; };
    pattern.remove(comma);
    pattern.replace(day, quoted(QString::fromStdString(DayOfMonth(date.day()))));
    pattern.replace(QStringLiteral("MMMM"), quoted(language.monthName(date.month())));
    return QLocale::c().toString(date, pattern);
}

}  // namespace

const std::map<std::string, FaceView::Reaction>& FaceView::Reactions() {
    static const std::map<std::string, Reaction> reactions = {
        {"_root.iArabicDay", &FaceView::ShowHijriDate},
        {"_root.ArabicMonth", &FaceView::ShowHijriDate},
        {"_root.iArabicYear", &FaceView::ShowHijriDate},
        {kNextPrayer, &FaceView::ShowNext},
        {kRemainingTime, &FaceView::ShowRemaining},
        {"_root.icompassAngle", &FaceView::ShowBearing},
        {"_root.myDay", &FaceView::ShowDate},
        {"_root.myMonth", &FaceView::ShowDate},
        {"_root.myYear", &FaceView::ShowDate},
        {"_root.myNumber", &FaceView::ShowDate},
        {"_root.azan", &FaceView::ShowMenu},
        {"_root.settings", &FaceView::ShowMenu},
        {"_root.tools", &FaceView::ShowMenu},
        {"_root.help", &FaceView::ShowMenu},
        {"qibla", &FaceView::ShowCaptions},
        {"prayer_time", &FaceView::ShowCaptions},
    };
    return reactions;
}

FaceView::FaceView(std::function<QTime()> now, Language language)
    : now_(std::move(now)),
      ground_({kFace, kArc, kMenuBand, {kTimesCard, kCompassCard}}),
      language_(std::move(language)) {
    setFixedSize(kFace.size());
    setContextMenuPolicy(Qt::PreventContextMenu);
    MakeButtons();
    MakeTexts();
    ShowDefaults();
    auto* firstMenu = new QShortcut(Qt::Key_F10, this);
    connect(firstMenu, &QShortcut::activated, this, [this] {
        menu_.front().button->setFocus(Qt::TabFocusReason);
        OpenMenu(0);
    });
}

// The order in which they are made is the order of the keyboard.
void FaceView::MakeButtons() {
    using Look = CaptionButton::Look;
    clock_ = Place(new ClockDial(this), kClock, "IDC_FS_Clock");
    day_ = Place(new CaptionButton(this, Look::kHeading), kDay, "IDC_FS_Day");
    for (std::size_t menu = 0; menu < menu_.size(); ++menu) {
        menu_[menu].button = MakeMenu(menu);
    }
    allTimes_ = Place(new CaptionButton(this, Look::kOutlined), kAllTimes, "IDC_FS_allTimes");
    qibla_ = Place(new CaptionButton(this, Look::kOutlined), kQibla, "IDC_FS_Qibla");
    minimise_ =
        Place(new SignButton(this, SignButton::Sign::kMinimise), kMinimise, "IDC_FS_minimize");
    close_ = Place(new SignButton(this, SignButton::Sign::kClose), kClose, "IDC_FS_close");
}

CaptionButton* FaceView::MakeMenu(std::size_t menu) {
    auto* button = Place(new CaptionButton(this, CaptionButton::Look::kMenu), kMenu);
    button->setObjectName(QString::fromUtf8(menu_[menu].command));
    connect(button, &QAbstractButton::clicked, this, [this, menu] { OpenMenu(menu); });
    return button;
}

// The command returns when the menu is closed; the arrow keys may have left it for its neighbour.
void FaceView::OpenMenu(std::size_t menu) {
    const auto stepAfter = [this](const MenuButton& entry) {
        window()->setProperty(kMenuStep, 0);
        entry.button->setDown(true);
        Tell(entry.command);
        entry.button->setDown(false);
        return window()->property(kMenuStep).toInt();
    };
    while (const int step = stepAfter(menu_[menu])) {
        menu = (menu + menu_.size() + static_cast<std::size_t>(step)) % menu_.size();
        menu_[menu].button->setFocus(Qt::TabFocusReason);
    }
}

void FaceView::MakeTexts() {
    date_ = Place(new TextLine(this, kDateLook), kDate);
    hijriDate_ = Place(new TextLine(this, kDateLook), kHijriDate);
    place_ = Place(new TextLine(this, kPlaceLook), kPlace);
    place_->setObjectName(QStringLiteral("place"));
    place_->setCursor(Qt::PointingHandCursor);
    clocks_ = Place(new TextLine(this, kClocksLook), kClocks);
    next_ = Place(new TextLine(this, kNextLook), kNext);
    remaining_ = Place(new CountdownLine(this, kRemainingLook), kRemaining);
    remaining_->setObjectName(QStringLiteral("countdown"));
    iqama_ = Place(new TextLine(this, kIqamaLook), kIqama);
    arc_ = Place(new DayArc(this), kArc);
    times_ = Place(new TimesView(this), kTimes);
    times_->setObjectName(QStringLiteral("times"));
    compass_ = Place(new Compass(this), kCompass);
    compass_->setObjectName(QStringLiteral("compass"));
}

template <class Widget>
Widget* FaceView::Place(Widget* widget, const QRect& place) {
    widget->setGeometry(place);
    return widget;
}

// The object name of a button is its command.
template <class Button>
Button* FaceView::Place(Button* button, const QRect& place, const char* command) {
    button->setObjectName(QString::fromUtf8(command));
    connect(button, &QAbstractButton::clicked, this, [this, command] { Tell(command); });
    return Place(button, place);
}

/// What the face says before it is told anything.
void FaceView::ShowDefaults() {
    SetVariable("_root.azan", QStringLiteral("Athan"));
    SetVariable("_root.settings", QStringLiteral("Settings"));
    SetVariable("_root.tools", QStringLiteral("Tools"));
    SetVariable("_root.help", QStringLiteral("Help"));
    SetVariable("qibla", QStringLiteral("Qibla"));
    SetVariable("prayer_time", QStringLiteral("Prayer Times"));
    NameSigns(QStringLiteral("Minimize"), QStringLiteral("Close"));
    clock_->ShowTime(now_());
}

void FaceView::SetVariable(const std::string& name, const QString& value) {
    const auto reaction = Reactions().find(name);
    if (reaction != Reactions().end()) {
        values_[name] = value;
        (this->*reaction->second)();
    }
}

QString FaceView::Value(const char* variable) const {
    const auto found = values_.find(variable);
    return found == values_.end() ? QString() : found->second;
}

QString FaceView::ToldDateText() const {
    return Value("_root.myNumber") + u' ' + Value("_root.myMonth") + u' ' + Value("_root.myYear");
}

QDate FaceView::ToldDate() const {
    return QLocale::c().toDate(ToldDateText(), QStringLiteral("d MMMM yyyy"));
}

// The date is told with every second; reading and writing it is work of once a day.
void FaceView::ShowDate() {
    const QString told = Value("_root.myDay") + u' ' + ToldDateText();
    if (told != writtenDate_.told) {
        writtenDate_ = WriteDate();
        writtenDate_.told = told;
    }
    if (writtenDate_.day != day_->text()) {
        day_->setText(writtenDate_.day);
    }
    date_->ShowText(writtenDate_.date);
}

FaceView::WrittenDate FaceView::WriteDate() const {
    const QDate date = ToldDate();
    if (names_ && date.isValid()) {
        const std::string day = names_->dayName(date.dayOfWeek()).toStdString();
        return {{}, QString::fromStdString(WithCapital(day)), Written(date, *names_)};
    }
    return {{}, Value("_root.myDay"), ToldDateText().trimmed()};
}

void FaceView::ShowHijriDate() {
    const QString day = Value("_root.iArabicDay");
    const QString month = Value("_root.ArabicMonth");
    const QString year = Value("_root.iArabicYear");
    const QString told = day + u' ' + month + u' ' + year;
    if (std::exchange(toldHijriDate_, told) != told) {
        hijriDate_->ShowText(QString::fromStdString(
            HijriDateText({day.toStdString(), month.toStdString(), year.toStdString()})));
    }
}

void FaceView::ShowNext() {
    next_->ShowText(Value(kNextPrayer));
}

void FaceView::ShowRemaining() {
    remaining_->ShowText(Value(kRemainingTime));
    clock_->ShowTime(now_());
}

void FaceView::ShowDay(const FaceDay& day) {
    times_->ShowTimes(day.rows, day.next);
    times_->setToolTip(day.timesNote);
    times_->setAccessibleDescription(day.timesNote);
    remaining_->ShowCountdown(day.countdownWords, day.seconds);
    place_->ShowText(day.place);
    clocks_->ShowText(day.clocks);
    iqama_->ShowText(day.iqama);
    ShowSky(day);
}

// The same sky is the same object until the minute turns.
void FaceView::ShowSky(const FaceDay& day) {
    arc_->ShowPrayers(day.arc, day.next);
    if (day.sky != nullptr && day.sky != sky_) {
        sky_ = day.sky;
        ground_.ShowSun(sky_->sunAltitude);
        arc_->ShowSky(sky_);
        update();
    }
}

QString FaceView::Weekday() const {
    return day_->text();
}

QString FaceView::DateText() const {
    return date_->text();
}

QString FaceView::HijriText() const {
    return hijriDate_->text();
}

void FaceView::NameSigns(const QString& minimise, const QString& close) {
    for (const auto& [button, name] : {std::pair(minimise_, minimise), std::pair(close_, close)}) {
        button->setAccessibleName(name);
        button->setToolTip(name);
    }
}

void FaceView::ShowBearing() {
    compass_->ShowBearing(ReadBearing(Value("_root.icompassAngle")));
}

// Side by side from where reading begins, as the menus open at fixed places from there.
void FaceView::ShowMenu() {
    const bool fromRight = DirectionOf(Value(menu_.front().variable)) == Qt::RightToLeft;
    int natural = 0;
    for (const MenuButton& entry : menu_) {
        entry.button->setText(Value(entry.variable));
        natural += entry.button->NaturalWidth();
    }
    int begin = kMenu.left();
    for (const MenuButton& entry : menu_) {
        const int wanted = entry.button->NaturalWidth();
        const int width = natural > kMenu.width() ? wanted * kMenu.width() / natural : wanted;
        const int left = fromRight ? kFace.width() - begin - width : begin;
        entry.button->setGeometry(left, kMenu.top(), width, kMenu.height());
        begin += width;
    }
    TakeKeys();
}

// Alt and the first letter of a title that no title before it has taken.
void FaceView::TakeKeys() {
    QString taken;
    for (const MenuButton& entry : menu_) {
        for (const QChar letter : entry.button->text().toUpper()) {
            if (letter.isLetter() && !taken.contains(letter)) {
                taken += letter;
                entry.button->setShortcut(QKeySequence(QStringLiteral("Alt+") + letter));
                break;
            }
        }
    }
}

// With the captions another language may have come.
void FaceView::ShowCaptions() {
    names_ = language_ ? language_() : std::nullopt;
    writtenDate_ = {};
    toldHijriDate_.clear();
    ShowDate();
    qibla_->setText(Value("qibla"));
    allTimes_->setText(Value("prayer_time"));
    times_->setAccessibleName(Value("prayer_time"));
    compass_->setAccessibleDescription(Value("qibla"));
}

void FaceView::Tell(const char* command) {
    if (onCommand) {
        onCommand(command);
    }
}

// What is no button is a handle to move the window by. The place is one only as soon as the pointer
// moves, for a click on it asks for another place.
void FaceView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (place_->geometry().contains(event->pos())) {
        pressedAt_ = event->pos();
    } else {
        Tell("IDC_FS_drag");
    }
}

void FaceView::mouseMoveEvent(QMouseEvent* event) {
    const bool moves = pressedAt_ && (event->pos() - *pressedAt_).manhattanLength() >=
                                         QGuiApplication::styleHints()->startDragDistance();
    if (moves) {
        pressedAt_.reset();
        Tell("IDC_FS_drag");
    }
}

void FaceView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && std::exchange(pressedAt_, std::nullopt)) {
        Tell("IDC_FS_place");
    }
}

void FaceView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& part : event->region()) {
        ground_.Paint(painter, part, devicePixelRatioF());
    }
}

}  // namespace horavex
