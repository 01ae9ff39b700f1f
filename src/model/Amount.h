// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVariant>

#include <variant>

namespace brinemark
{

/// An amount of money in the type in which it was given: none, a whole number or a real number.
class Amount
{
public:
    Amount() = default;
    Amount(qint64 integer)
        : m_value(integer)
    {
    }
    Amount(int integer)
        : m_value(qint64(integer))
    {
    }
    Amount(double real)
        : m_value(real)
    {
    }

    [[nodiscard]] bool isNone() const { return std::holds_alternative<std::monostate>(m_value); }
    [[nodiscard]] const qint64 *integer() const { return std::get_if<qint64>(&m_value); }
    [[nodiscard]] const double *real() const { return std::get_if<double>(&m_value); }
    [[nodiscard]] double toDouble() const; ///< 0 for none and for NaN

    [[nodiscard]] QVariant toVariant() const; ///< invalid, qlonglong or double
    /// Whole numbers stay whole, other numbers become real, a text gives its leading number; any other type gives none.
    [[nodiscard]] static Amount fromVariant(const QVariant &value);

    friend bool operator==(const Amount &, const Amount &) = default;

private:
    std::variant<std::monostate, qint64, double> m_value;
};

} // namespace brinemark
