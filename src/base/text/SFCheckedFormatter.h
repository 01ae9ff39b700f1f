// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLocale>
#include <QString>
#include <QVariant>

#include <optional>

class QDataStream;

namespace brinemark
{

/// The separators in typed and shown numbers; null where a locale has none.
struct NumberSeparators {
    QChar decimal;
    QChar thousands;

    [[nodiscard]] static NumberSeparators ofLocale(const QLocale &locale = QLocale());
};

/// A selection in UTF-16 units; length 0 is a caret.
struct TextSelection {
    qsizetype start = 0;
    qsizetype length = 0;

    friend bool operator==(const TextSelection &, const TextSelection &) = default;
};

/// The outcome of checking an edit. When it is not accepted, text and selection replace the proposed ones.
struct VettedEdit {
    bool accepted = true;
    QString text;
    TextSelection selection;
    bool beep = false;
};

/// Reads, shows and checks the number of a water parameter in the parameter's unit, clamped to a range and rounded to a
/// number of decimals. In not-tested mode a negative value means that the parameter was not tested, and shows as the
/// text of "NotTested". Reading never fails: a text without a number gives 0 or, in not-tested mode when it is empty or
/// the text of "NotTested", -1; the result is then clamped.
class SFCheckedFormatter
{
public:
    static constexpr qint32 classVersion = 1; ///< of what encodeWithCoder() writes

    /// Not-tested mode is off. A `max` below `min` lowers the minimum, as setMax() does.
    explicit SFCheckedFormatter(double min = 0, double max = 100, int precision = 2, int roundingBehaviour = 2);
    /// Reads what encodeWithCoder() wrote; not-tested mode is off. Data of another version, of another class or cut off
    /// gives the defaults; in the last two cases the stream's status is an error afterwards.
    explicit SFCheckedFormatter(QDataStream &coder);

    /// A formatter with the defaults; kept without a caller beside the other makers.
    [[nodiscard]] static SFCheckedFormatter checkedFormatter();
    [[nodiscard]] static SFCheckedFormatter checkedFormatterWithMin(double min, double max, int precision,
                                                                    int roundingBehaviour);

    /// Smallest and largest value that a text can give. The limit set last wins: if the minimum would exceed the
    /// maximum, the other limit is set to the same value. NaN is ignored.
    void setMin(double min);
    void setMax(double max);
    /// Decimals kept and shown. A negative precision rounds to tens, hundreds ... and shows no decimals.
    void setPrecision(int precision) { m_precision = precision; }
    /// 0 none, 1 nearest with halves away from zero, 2 toward zero, 3 down, 4 up; any other value means none.
    void setRoundingBehaviour(int behaviour) { m_roundingBehaviour = behaviour; }
    void setUseNotTested(bool use) { m_useNotTested = use; }
    /// Replaces the separators of the default locale.
    void setSeparators(const NumberSeparators &separators) { m_separators = separators; }

    [[nodiscard]] double getMin() const { return m_min; }
    [[nodiscard]] double getMax() const { return m_max; }
    [[nodiscard]] int getPrecision() const { return m_precision; }
    [[nodiscard]] int getRoundingBehaviour() const { return m_roundingBehaviour; }
    [[nodiscard]] bool useNotTested() const { return m_useNotTested; }
    [[nodiscard]] NumberSeparators separators() const { return m_separators.value_or(NumberSeparators::ofLocale()); }

    /// The value of a text: a double, or the text "-" when only the sign has been typed so far.
    [[nodiscard]] QVariant getObjectValue(const QString &text) const;
    /// The same, but always a number, clamped and rounded: a lone "-" gives 0.
    [[nodiscard]] double numberForString(const QString &text) const;
    /// The text of a number (not clamped) or of "-"; a null text for anything else.
    [[nodiscard]] QString stringForObjectValue(const QVariant &value) const;
    /// Checks one edit. Call it for every edit by the user, with text and selection after and before the edit. A
    /// selection beyond the end of its text is refused.
    [[nodiscard]] VettedEdit isPartialStringValid(const QString &proposed, const TextSelection &proposedSelection,
                                                  const QString &original,
                                                  const TextSelection &originalSelection) const;

    /// Writes range, decimals and rounding, but neither the not-tested mode nor the separators.
    void encodeWithCoder(QDataStream &coder) const;

private:
    /// The number in a text, ignoring all other characters; neither clamped nor rounded.
    [[nodiscard]] double getBestDoubleFromString(const QString &text) const;

    double m_min = 0;
    double m_max = 100;
    int m_precision;
    int m_roundingBehaviour;
    bool m_useNotTested = false;
    std::optional<NumberSeparators> m_separators;
};

} // namespace brinemark
