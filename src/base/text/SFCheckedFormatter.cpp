// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/SFCheckedFormatter.h"

#include "base/text/NumberText.h"
#include "base/text/Texts.h"

#include <QDataStream>

#include <algorithm>
#include <array>
#include <cmath>

namespace brinemark
{

namespace
{

constexpr auto className = "SFCheckedFormatter";
constexpr QChar minus = u'-';

double asParsed(double value)
{
    return value;
}

/// Indexed by rounding code.
constexpr auto roundings = std::to_array<double (*)(double)>({
    asParsed,
    [](double value) { return std::round(value); },
    [](double value) { return std::trunc(value); },
    [](double value) { return std::floor(value); },
    [](double value) { return std::ceil(value); },
});

bool isTypedDigit(QChar c)
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
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Bool:
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

SFCheckedFormatter::SFCheckedFormatter(QDataStream &coder)
    : SFCheckedFormatter()
{
    QByteArray name;
    qint32 version = 0;
    coder >> name >> version;
    if (coder.status() == QDataStream::Ok && name != className)
        coder.setStatus(QDataStream::ReadCorruptData);
    if (coder.status() != QDataStream::Ok || version != classVersion)
        return;
    double min = 0;
    double max = 0;
    qint32 precision = 0;
    qint32 rounding = 0;
    coder >> min >> max >> precision >> rounding;
    if (coder.status() == QDataStream::Ok)
        *this = SFCheckedFormatter(min, max, precision, rounding);
}

SFCheckedFormatter SFCheckedFormatter::checkedFormatter()
{
    return SFCheckedFormatter();
}

SFCheckedFormatter SFCheckedFormatter::checkedFormatterWithMin(double min, double max, int precision,
                                                               int roundingBehaviour)
{
    return SFCheckedFormatter(min, max, precision, roundingBehaviour);
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
    const QChar decimal = separators().decimal;
    QString kept;
    bool separated = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isTypedDigit(c) || (c == minus && i == 0)) {
            kept += c;
        } else if (c == decimal && !separated) {
            kept += u'.';
            separated = true;
        }
    }
    return leadingNumber(kept);
}

QVariant SFCheckedFormatter::getObjectValue(const QString &text) const
{
    return text == minus ? QVariant(text) : QVariant(numberForString(text));
}

double SFCheckedFormatter::numberForString(const QString &text) const
{
    const double value = std::min(m_max, std::max(getBestDoubleFromString(text), m_min));
    const double scale = std::pow(10.0, m_precision);
    const bool known = m_roundingBehaviour >= 0 && m_roundingBehaviour < static_cast<int>(roundings.size());
    const auto rounding = known ? roundings[static_cast<std::size_t>(m_roundingBehaviour)] : asParsed;
    const double rounded = rounding(value * scale) / scale;
    // A huge precision makes the scaled value infinite; the value then stays unrounded. Adding 0.0 turns -0 into 0.
    return (std::isfinite(rounded) ? rounded : value) + 0.0;
}

QString SFCheckedFormatter::stringForObjectValue(const QVariant &value) const
{
    if (!isNumber(value))
        return value.typeId() == QMetaType::QString && value.toString() == minus ? value.toString() : QString();
    const double number = value.toDouble();
    if (number < 0 && m_useNotTested)
        return text("NotTested"_key);
    // Only the decimal separator follows the locale: getBestDoubleFromString() cannot read a locale's own digits and
    // sign.
    return fixedText(number, std::clamp(m_precision, 0, 300)).replace(u'.', separators().decimal);
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
    const auto [decimal, thousands] = separators();
    if (c == minus) {
        const bool allowed = !m_useNotTested && m_min < 0 && i == 0;
        return allowed && (proposed.size() == 1 || proposed[1] != minus) ? accept : refuse;
    }
    if (c == decimal) {
        if (m_precision == 0)
            return refuse;
        qsizetype other = proposed.indexOf(c);
        if (other == i)
            other = proposed.indexOf(c, i + 1);
        if (other < 0)
            return accept;
        // Keep the separator that was typed last and remove the other one.
        return {false, QString(proposed).remove(other, 1), {i > other ? start : start + 1, 0}, false};
    }
    return c == thousands || isTypedDigit(c) ? accept : refuse;
}

void SFCheckedFormatter::encodeWithCoder(QDataStream &coder) const
{
    coder << QByteArray(className) << classVersion << m_min << m_max << qint32{m_precision}
          << qint32{m_roundingBehaviour};
}

} // namespace brinemark
