#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>
#include <QVariant>

namespace brinemark
{

/// The separators that numbers are typed and shown with.
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

/// Reads, shows and vets the number of a water parameter, clamped to a range and rounded to so many decimals. In its
/// not-tested mode a negative value stands for a parameter that was not tested, shown as a word.
class SFCheckedFormatter
{
public:
    /// Clears the not-tested mode; the range never ends below its start, a later setter wins.
    explicit SFCheckedFormatter(double min = 0, double max = 100, int precision = 2, int roundingBehaviour = 2);

    /// Not a number is no limit and changes nothing.
    void setMin(double min);
    void setMax(double max);
    void setPrecision(int precision) { m_precision = precision; }
    /// 0 none, 1 nearest with halves away from zero, 2 toward zero, 3 down, 4 up; any other is none.
    void setRoundingBehaviour(int behaviour) { m_roundingBehaviour = behaviour; }
    void setUseNotTested(bool use) { m_useNotTested = use; }
    void setSeparators(const NumberSeparators &separators) { m_separators = separators; }

    [[nodiscard]] double getMin() const { return m_min; }
    [[nodiscard]] double getMax() const { return m_max; }
    [[nodiscard]] int getPrecision() const { return m_precision; }
    [[nodiscard]] int getRoundingBehaviour() const { return m_roundingBehaviour; }
    [[nodiscard]] bool useNotTested() const { return m_useNotTested; }

    /// The value of a text: a double, or the text "-" of a number that is still being typed.
    [[nodiscard]] QVariant getObjectValue(const QString &text) const;
    /// The text of a number or of "-"; a null text for anything else.
    [[nodiscard]] QString stringForObjectValue(const QVariant &value) const;
    [[nodiscard]] VettedEdit isPartialStringValid(const QString &proposed, const TextSelection &proposedSelection,
                                                  const QString &original,
                                                  const TextSelection &originalSelection) const;
    /// The number in a text, whatever else stands in it; neither clamped nor rounded.
    [[nodiscard]] double getBestDoubleFromString(const QString &text) const;

    /// Range, decimals and rounding, without the not-tested mode.
    [[nodiscard]] QByteArray encode() const;
    /// What encode() wrote; the defaults for another version and for damaged bytes.
    [[nodiscard]] static SFCheckedFormatter decode(const QByteArray &archive);

private:
    double m_min = 0;
    double m_max = 100;
    int m_precision;
    int m_roundingBehaviour;
    bool m_useNotTested = false;
    NumberSeparators m_separators = NumberSeparators::ofLocale();
};

} // namespace brinemark
