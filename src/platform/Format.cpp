#include "Format.h"

#include <QLocale>
#include <QRegularExpression>
#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <vector>

namespace {

const QString TimeOfDefaultText = QStringLiteral("HH:mm:ss");

bool Is(const QString& pattern, QStringView name) {
    return pattern.compare(name, Qt::CaseInsensitive) == 0;
}

QString WithFourDigitYear(QString pattern) {
    static const QRegularExpression twoDigits(QStringLiteral("(?<!y)yy(?!y)"));
    return pattern.replace(twoDigits, QStringLiteral("yyyy"));
}

QString WithoutSeconds(QString pattern) {
    static const QRegularExpression seconds(QStringLiteral("[^\\w']*s+([.,]z+)?"));
    return pattern.remove(seconds);
}

/// What the user's locale says, kept because it is asked for each row of a report.
struct LocaleTexts {
    LocaleTexts() {
        for (int number = 0; number < 60; ++number)
            twoDigits[static_cast<std::size_t>(number)] =
                locale.toString(QTime(0, 0, number), QStringLiteral("ss"));
    }

    QLocale locale;
    QString shortDate = WithFourDigitYear(locale.dateFormat(QLocale::ShortFormat));
    QString shortTime = WithoutSeconds(locale.timeFormat(QLocale::ShortFormat));
    std::array<QString, 60> twoDigits;
    std::vector<QString> minuteTexts =
        std::vector<QString>(std::size_t{24} * 60); ///< short times; empty until asked for
    DateTime day;                                   ///< the day that was last written,
    QString dayText;                                ///< and its text; empty if none was
    QString readText;                               ///< the date that was last read,
    QDate readDate;                                 ///< and what it means
};

LocaleTexts& Texts() {
    static LocaleTexts texts;
    if (texts.locale != QLocale())
        texts = LocaleTexts();
    return texts;
}

const QString& DayText(LocaleTexts& texts, DateTime value) {
    if (texts.dayText.isEmpty() || texts.day != value.DatePart()) {
        texts.day = value.DatePart();
        texts.dayText = texts.locale.toString(value.ToQDate(), texts.shortDate);
    }
    return texts.dayText;
}

const QString& MinuteText(LocaleTexts& texts, DateTime value) {
    const qint64 minute = value.TimePart().Milliseconds() / 60'000;
    QString& text = texts.minuteTexts[static_cast<std::size_t>(minute)];
    if (text.isEmpty())
        text = texts.locale.toString(value.ToQTime(), texts.shortTime);
    return text;
}

/// Qt cannot read digits of two units each. The dates of the languages that have them are without
/// words, so they can be read with Latin digits.
QString LatinDigits(const LocaleTexts& texts, QString text) {
    for (std::size_t digit = 0; digit < 10; ++digit)
        text.replace(texts.twoDigits[digit].right(2), QString::number(digit));
    return text;
}

QDate ReadShortDate(LocaleTexts& texts, const QString& text) {
    if (texts.readText == text)
        return texts.readDate;
    texts.readText = text;
    texts.readDate = texts.locale.zeroDigit().size() > 1
                         ? QLocale::c().toDate(LatinDigits(texts, text), texts.shortDate)
                         : texts.locale.toDate(text, texts.shortDate);
    return texts.readDate;
}

/// Reads a time in TimeOfDefaultText, in the digits of any language.
QTime ReadDefaultTime(const LocaleTexts& texts, const QString& text) {
    if (text.size() != TimeOfDefaultText.size())
        return QLocale::c().toTime(LatinDigits(texts, text), TimeOfDefaultText);
    const auto number = [&](qsizetype at) {
        const int tens = text[at].digitValue(), ones = text[at + 1].digitValue();
        return tens < 0 || ones < 0 ? -1 : tens * 10 + ones;
    };
    return text[2] == u':' && text[5] == u':' ? QTime(number(0), number(3), number(6)) : QTime();
}

QString Padded(int value, int width) {
    if (width == 2 && value >= 0 && value < 100) // most numbers of a date, without the slow way
        return QChar(u'0' + value / 10) % QChar(u'0' + value % 10);
    return QStringLiteral("%1").arg(value, width, 10, QLatin1Char('0'));
}

} // namespace

QString GetShortDateFormat() { return Texts().shortDate; }

QString Format(DateTime value, const QString& pattern) {
    LocaleTexts& texts = Texts();
    if (Is(pattern, u"Short Date") || pattern == texts.shortDate)
        return DayText(texts, value);
    if (Is(pattern, u"Medium Date"))
        return QLocale().toString(value.ToQDate(), QStringLiteral("dd-MMM-yyyy"));
    if (Is(pattern, u"Short Time"))
        return MinuteText(texts, value);

    const QDate date = value.ToQDate();
    const QTime time = value.ToQTime();
    QString text;
    bool afterHour = false;
    for (qsizetype at = 0; at < pattern.size();) {
        const QChar letter = pattern[at].toLower();
        qsizetype end = at;
        while (end < pattern.size() && pattern[end].toLower() == letter)
            ++end;
        const int count = static_cast<int>(end - at);
        const int width = count > 1 ? 2 : 1;
        const bool minute = letter == u'n' || (letter == u'm' && afterHour && count < 3);
        if (minute)
            text += Padded(time.minute(), width);
        else if (letter == u'd')
            text += Padded(date.day(), width);
        else if (letter == u'm')
            text += count > 2 ? QLocale().monthName(date.month(), QLocale::ShortFormat)
                              : Padded(date.month(), width);
        else if (letter == u'y')
            text += count > 2 ? Padded(date.year(), 4) : Padded(date.year() % 100, 2);
        else if (letter == u'h')
            text += Padded(time.hour(), width);
        else if (letter == u's')
            text += Padded(time.second(), width);
        else
            text += QStringView(pattern).mid(at, count);
        if (letter.isLetter())
            afterHour = letter == u'h';
        at = end;
    }
    return text;
}

QString Format(long long value, const QString& pattern) {
    return QStringLiteral("%1").arg(value, static_cast<int>(pattern.count(u'0')), 10,
                                    QLatin1Char('0'));
}

QString DefaultDateTimeText(DateTime value) {
    LocaleTexts& texts = Texts();
    const auto seconds = static_cast<std::size_t>(value.TimePart().Milliseconds() / 1000);
    return DayText(texts, value) % u' ' % texts.twoDigits[seconds / 3600] % u':' %
           texts.twoDigits[seconds / 60 % 60] % u':' % texts.twoDigits[seconds % 60];
}

std::optional<DateTime> DateTimeFromText(const QString& text) {
    const qsizetype parting = text.lastIndexOf(u' ');
    if (parting < 0)
        return {};
    LocaleTexts& texts = Texts();
    const QDate date = ReadShortDate(texts, text.left(parting));
    const QTime time = ReadDefaultTime(texts, text.mid(parting + 1));
    if (!date.isValid() || !time.isValid())
        return {};
    return DateTime::FromQt(date) + DateTime::FromMilliseconds(time.msecsSinceStartOfDay());
}

QString WithoutControls(QString text, QChar instead) {
    const auto isControl = [](QChar letter) {
        return letter.category() == QChar::Other_Control || letter == QChar::LineSeparator ||
               letter == QChar::ParagraphSeparator;
    };
    std::replace_if(text.begin(), text.end(), isControl, instead);
    return text;
}
