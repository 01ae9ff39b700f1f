// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLocale>
#include <QString>
#include <QVariant>

#include <optional>

class QDataStream;

namespace brinemark
{

/// The separators that numbers are typed and shown with; null where a locale has none.
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

/// The outcome of vetting an edit. When it is not accepted, text and selection replace what was proposed.
struct VettedEdit {
    bool accepted = true;
    QString text;
    TextSelection selection;
    bool beep = false;
};

/// Reads, shows and vets the number of a water parameter, clamped to a range and rounded to so many decimals. Its unit
/// is that of the parameter. In its not-tested mode a negative value stands for a parameter that was not tested, shown
/// as the text of "NotTested". Nothing fails: a text that is no number reads as 0 (not tested: -1), then clamped.
class SFCheckedFormatter
{
public:
    static constexpr qint32 classVersion = 1; ///< of the archive

    /// Not-tested mode off. Set through the setters, so that a `max` below `min` lowers the minimum.
    explicit SFCheckedFormatter(double min = 0, double max = 100, int precision = 2, int roundingBehaviour = 2);
    /// Reads what encodeWithCoder() wrote; not-tested mode off. An archive of another version, another class or one
    /// that is cut off gives the defaults; the two latter also set the stream's status.
    explicit SFCheckedFormatter(QDataStream &coder);

    [[nodiscard]] static SFCheckedFormatter checkedFormatter();
    [[nodiscard]] static SFCheckedFormatter checkedFormatterWithMin(double min, double max, int precision,
                                                                    int roundingBehaviour);

    /// Smallest and largest value that a text can give. The one set last wins: it takes the other one along where the
    /// minimum would exceed the maximum. Not a number is no limit and changes nothing.
    void setMin(double min);
    void setMax(double max);
    /// Decimals kept and shown. A negative one rounds to tens, hundreds ... and shows none.
    void setPrecision(int precision) { m_precision = precision; }
    /// 0 none, 1 nearest with halves away from zero, 2 toward zero, 3 down, 4 up; any other is none.
    void setRoundingBehaviour(int behaviour) { m_roundingBehaviour = behaviour; }
    void setUseNotTested(bool use) { m_useNotTested = use; }
    /// Instead of those of the default locale.
    void setSeparators(const NumberSeparators &separators) { m_separators = separators; }

    [[nodiscard]] double getMin() const { return m_min; }
    [[nodiscard]] double getMax() const { return m_max; }
    [[nodiscard]] int getPrecision() const { return m_precision; }
    [[nodiscard]] int getRoundingBehaviour() const { return m_roundingBehaviour; }
    [[nodiscard]] bool useNotTested() const { return m_useNotTested; }
    [[nodiscard]] NumberSeparators separators() const { return m_separators.value_or(NumberSeparators::ofLocale()); }

    /// The value of a text: a double, or the text "-" of a number that is still being typed.
    [[nodiscard]] QVariant getObjectValue(const QString &text) const;
    /// The same, but always a number, clamped and rounded: a lone "-" reads as 0.
    [[nodiscard]] double numberForString(const QString &text) const;
    /// The text of a number (not clamped) or of "-"; a null text for anything else.
    [[nodiscard]] QString stringForObjectValue(const QVariant &value) const;
    /// Vets one edit. To be called after each one that a person makes, with the text and the selection as they would
    /// be and as they were. A selection beyond its text is refused.
    [[nodiscard]] VettedEdit isPartialStringValid(const QString &proposed, const TextSelection &proposedSelection,
                                                  const QString &original,
                                                  const TextSelection &originalSelection) const;

    /// Range, decimals and rounding, without the not-tested mode and the separators.
    void encodeWithCoder(QDataStream &coder) const;

private:
    /// The number in a text, whatever else stands in it; neither clamped nor rounded.
    [[nodiscard]] double getBestDoubleFromString(const QString &text) const;

    double m_min = 0;
    double m_max = 100;
    int m_precision;
    int m_roundingBehaviour;
    bool m_useNotTested = false;
    std::optional<NumberSeparators> m_separators;
};

} // namespace brinemark
