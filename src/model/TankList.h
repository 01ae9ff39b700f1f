// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <vector>

namespace brinemark
{

class Tank;

/// The tanks of the open file, in tree and file order.
class TankList
{
public:
    using Tanks = std::vector<std::shared_ptr<Tank>>;

    [[nodiscard]] int count() const { return int(m_tanks.size()); }
    [[nodiscard]] bool isEmpty() const { return m_tanks.empty(); }
    [[nodiscard]] const std::shared_ptr<Tank> &at(int index) const { return m_tanks.at(std::size_t(index)); }
    [[nodiscard]] int indexOf(const Tank *tank) const; ///< -1 when it is not in the list

    void append(std::shared_ptr<Tank> tank) { m_tanks.push_back(std::move(tank)); }
    void insert(int index, std::shared_ptr<Tank> tank); ///< past the end it is appended
    std::shared_ptr<Tank> removeAt(int index);
    void clear() { m_tanks.clear(); }

    [[nodiscard]] Tanks::const_iterator begin() const { return m_tanks.begin(); }
    [[nodiscard]] Tanks::const_iterator end() const { return m_tanks.end(); }

private:
    Tanks m_tanks;
};

} // namespace brinemark
