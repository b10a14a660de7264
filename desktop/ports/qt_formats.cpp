#include "desktop/ports/qt_formats.h"

#include <QDate>
#include <QTime>
#include <algorithm>
#include <cmath>

#include "base/rounding.h"
#include "desktop/ports/date_time_pattern.h"

namespace horavex {

namespace {

bool IsOfLatin1(const QString& text) {
    return std::ranges::all_of(text, [](QChar letter) { return letter.unicode() <= 0xff; });
}

/// In ASCII digits, whatever the locale's own are.
QString WithPlainDigits(const QString& text) {
    if (IsOfLatin1(text)) {
        return text;
    }
    QString plain;
    for (const uint letter : text.toUcs4()) {
        const bool isDigit = QChar::category(letter) == QChar::Number_DecimalDigit;
        const uint shown = isDigit ? u'0' + static_cast<uint>(QChar::digitValue(letter)) : letter;
        plain += QString::fromUcs4(reinterpret_cast<const char32_t*>(&shown), 1);
    }
    return plain;
}

/// The program works in plain digits and blanks; users may see others (lang/own_digits.h).
std::string Plain(QString text) {
    text.replace(QChar(0x202F), QChar(u' '));  // the narrow no-break space
    text.replace(QChar(QChar::Nbsp), QChar(u' '));
    return WithPlainDigits(text).toStdString();
}

QTime TimeOf(Date moment) {
    const ClockTime time = ClockTimeOf(moment);
    return {time.hour, time.minute, time.second};
}

// The day that holds the moment once it is rounded to a whole second.
QDate DayOf(Date moment) {
    const CivilDate day =
        CivilFromDate(std::floor(RoundHalfEven(moment * kSecondsPerDay) / kSecondsPerDay));
    return {day.year, day.month, day.day};
}

}  // namespace

QtFormats::QtFormats(QLocale locale)
    : locale_(std::move(locale)),
      mediumTime_(MediumTimePattern(locale_.timeFormat(QLocale::ShortFormat))),
      longTime_(LongTimePattern(locale_.timeFormat(QLocale::LongFormat))),
      shortDate_(ShortDatePattern(locale_.dateFormat(QLocale::ShortFormat))) {}

std::string QtFormats::MediumTime(Date time) const {
    return Plain(locale_.toString(TimeOf(time), mediumTime_));
}

std::string QtFormats::TwelveHourTime(Date time) const {
    return Plain(locale_.toString(TimeOf(time), QStringLiteral("hh:mm AP")));
}

std::string QtFormats::LongTime(Date time) const {
    return Plain(locale_.toString(TimeOf(time), longTime_));
}

std::string QtFormats::LongDate(Date date) const {
    return Plain(locale_.toString(DayOf(date), QLocale::LongFormat));
}

std::string QtFormats::ShortDate(Date date) const {
    return Plain(locale_.toString(DayOf(date), shortDate_));
}

std::string QtFormats::WeekdayName(Date date) const {
    return Plain(locale_.toString(DayOf(date), QStringLiteral("dddd")));
}

// A month's name that no day stands before is a form of its own in some languages.
std::string QtFormats::MonthAndYear(Date date) const {
    const QDate day = DayOf(date);
    return Plain(locale_.standaloneMonthName(day.month()) + QChar(u' ') +
                 locale_.toString(day, QStringLiteral("yyyy")));
}

char QtFormats::DecimalMark() const {
    const QString mark = locale_.decimalPoint();
    return mark == QStringLiteral(",") ? ',' : '.';
}

}  // namespace horavex
