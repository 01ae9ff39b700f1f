#include "chemistry/SFCheckedFormatter.h"

#include "base/text/NumberText.h"
#include "base/text/Texts.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <array>
#include <cmath>

namespace brinemark
{

namespace
{

constexpr qint32 archiveVersion = 1;
constexpr QChar minus = u'-';

double asParsed(double value)
{
    return value;
}

/// By rounding code.
constexpr std::array<double (*)(double), 5> roundings{
    asParsed,
    [](double value) { return std::round(value); },
    [](double value) { return std::trunc(value); },
    [](double value) { return std::floor(value); },
    [](double value) { return std::ceil(value); },
};

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

QChar firstOf(const QString &text)
{
    return text.isEmpty() ? QChar() : text.front();
}

} // namespace

NumberSeparators NumberSeparators::ofLocale(const QLocale &locale)
{
    return {firstOf(locale.decimalPoint()), firstOf(locale.groupSeparator())};
}

SFCheckedFormatter::SFCheckedFormatter(double min, double max, int precision, int roundingBehaviour)
    : m_precision(precision)
    , m_roundingBehaviour(roundingBehaviour)
{
    setMin(min);
    setMax(max);
}

void SFCheckedFormatter::setMin(double min)
{
    if (std::isnan(min))
        return;
    m_min = min;
    m_max = std::max(m_max, min);
}

void SFCheckedFormatter::setMax(double max)
{
    if (std::isnan(max))
        return;
    m_max = max;
    m_min = std::min(m_min, max);
}

double SFCheckedFormatter::getBestDoubleFromString(const QString &text) const
{
    if (m_useNotTested && (text.isEmpty() || text == brinemark::text("NotTested"_key)))
        return -1;
    QString kept;
    bool separated = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isDigit(c) || (c == minus && i == 0)) {
            kept += c;
        } else if (c == m_separators.decimal && !separated) {
            kept += u'.';
            separated = true;
        }
    }
    return leadingNumber(kept);
}

QVariant SFCheckedFormatter::getObjectValue(const QString &text) const
{
    if (text == minus)
        return text;
    const double value = std::min(m_max, std::max(getBestDoubleFromString(text), m_min));
    const double scale = std::pow(10.0, m_precision);
    const bool known = m_roundingBehaviour >= 0 && m_roundingBehaviour < static_cast<int>(roundings.size());
    const auto rounding = known ? roundings[static_cast<std::size_t>(m_roundingBehaviour)] : asParsed;
    const double rounded = rounding(value * scale) / scale;
    // A scale beyond the type's range would leave no number.
    return std::isfinite(rounded) ? rounded : value;
}

QString SFCheckedFormatter::stringForObjectValue(const QVariant &value) const
{
    if (!isNumber(value))
        return value.typeId() == QMetaType::QString && value.toString() == minus ? value.toString() : QString();
    const double number = value.toDouble();
    if (number < 0 && m_useNotTested)
        return text("NotTested"_key);
    // Only the separator is the locale's: digits and sign of its own could not be read back.
    return QString::number(number, 'f', std::clamp(m_precision, 0, 300)).replace(u'.', m_separators.decimal);
}

VettedEdit SFCheckedFormatter::isPartialStringValid(const QString &proposed, const TextSelection &proposedSelection,
                                                    const QString &original,
                                                    const TextSelection &originalSelection) const
{
    const VettedEdit accept{true, proposed, proposedSelection, false};
    const VettedEdit refuse{false, original, originalSelection, true};
    if (proposedSelection.start == 0)
        return accept;

    const qsizetype step = proposedSelection.start - originalSelection.start;
    if (step < 0 || step > 1) { // a paste, or a deletion to the left
        const QString shown = stringForObjectValue(getObjectValue(proposed));
        return {false, shown, {shown.size(), 0}, false};
    }

    const qsizetype start = originalSelection.start;
    const qsizetype i = start == proposed.size() ? start - 1 : start;
    const double leading = leadingNumber(proposed);
    if (i < 0 || i >= proposed.size() || leading > m_max || leading < m_min)
        return refuse;

    const QChar c = proposed[i];
    if (c == minus) {
        const bool allowed = !m_useNotTested && m_min < 0 && i == 0;
        return allowed && (proposed.size() == 1 || proposed[1] != minus) ? accept : refuse;
    }
    if (c == m_separators.decimal) {
        if (m_precision == 0)
            return refuse;
        qsizetype other = proposed.indexOf(c);
        if (other == i)
            other = proposed.indexOf(c, i + 1);
        if (other < 0)
            return accept;
        // The separator typed last wins.
        return {false, QString(proposed).remove(other, 1), {i > other ? start : start + 1, 0}, false};
    }
    return c == m_separators.thousands || isDigit(c) ? accept : refuse;
}

QByteArray SFCheckedFormatter::encode() const
{
    QByteArray archive;
    QDataStream stream(&archive, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << archiveVersion << m_min << m_max << qint32{m_precision} << qint32{m_roundingBehaviour};
    return archive;
}

SFCheckedFormatter SFCheckedFormatter::decode(const QByteArray &archive)
{
    QDataStream stream(archive);
    stream.setVersion(QDataStream::Qt_6_4);
    qint32 version = 0;
    double min = 0;
    double max = 0;
    qint32 precision = 0;
    qint32 rounding = 0;
    stream >> version >> min >> max >> precision >> rounding;
    if (stream.status() != QDataStream::Ok || version != archiveVersion)
        return SFCheckedFormatter();
    return SFCheckedFormatter(min, max, precision, rounding);
}

} // namespace brinemark
