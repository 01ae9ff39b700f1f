// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointer>

#include <utility>

namespace brinemark
{

/// Owns a widget that may also get a parent: deletes it unless the parent has done so, and is null from then on.
/// Converts like a pointer. Declare it after the members that the widget's signals lead to, since those signals can
/// still arrive while it is being destroyed.
template <class T>
class OwnedWidget
{
public:
    OwnedWidget() = default;
    explicit OwnedWidget(T *widget)
        : m_widget(widget)
    {
    }
    ~OwnedWidget() { delete m_widget.data(); }
    OwnedWidget(const OwnedWidget &) = delete;
    OwnedWidget &operator=(const OwnedWidget &) = delete;

    /// Deletes the widget that it owned before.
    OwnedWidget &operator=(T *widget)
    {
        if (widget != m_widget)
            delete m_widget.data();
        m_widget = widget;
        return *this;
    }

    /// Gives the ownership up.
    T *release() { return std::exchange(m_widget, nullptr).data(); }

    [[nodiscard]] T *get() const { return m_widget.data(); }
    operator T *() const { return m_widget.data(); }
    T *operator->() const { return m_widget.data(); }
    T &operator*() const { return *m_widget; }

private:
    QPointer<T> m_widget;
};

} // namespace brinemark
