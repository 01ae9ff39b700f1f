// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QObject>

#include <functional>

class QDialog;
class QLineEdit;

namespace brinemark
{

/// The mailing-list sign-up: a small modal window with one field for the address.
class EListSignupController : public QObject, public Shared<EListSignupController>
{
    Q_OBJECT

public:
    ~EListSignupController() override;

    /// Fills the field with the user's e-mail address, centres the window and shows it.
    void display();
    /// Calls `act` when the window closes, or at once when it is not open. The receiver's end cancels the call.
    void whenClosed(QObject *receiver, std::function<void()> act) const;

    [[nodiscard]] QDialog *window() const { return m_window.get(); }

private:
    friend class Shared<EListSignupController>;
    EListSignupController();

    void join(); ///< opens a mail with the address from the field; beeps when the field is empty

    QLineEdit *m_addressField;
    OwnedWidget<QDialog> m_window;
};

} // namespace brinemark
