// SPDX-License-Identifier: GPL-3.0-or-later

#include "online/views/EListSignupController.h"

#include "base/Product.h"
#include "base/text/Texts.h"
#include "ui/Alerts.h"
#include "ui/Desktop.h"
#include "ui/Icons.h"
#include "ui/Shell.h"
#include "ui/Spacing.h"
#include "ui/WindowPlacement.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace brinemark
{

namespace
{

constexpr char16_t mailSubject[] = u"Brinemark eList Signup";
constexpr int signupTextWidth = 380;

} // namespace

EListSignupController::EListSignupController()
    : m_window(new QDialog(Shell::shared().mainWindow())) // the parent keeps it above the main window
{
    m_window->setObjectName(QStringLiteral("signupWindow"));
    m_window->setWindowTitle(text("SignUpTitle"));
    m_window->setWindowModality(Qt::ApplicationModal);

    auto *picture = new QLabel;
    picture->setPixmap(icon("Mail").pixmap(QSize(48, 48), m_window->devicePixelRatio()));
    auto *title = new QLabel(text("SignUpTitle"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto *message = new QLabel(text("SignUpMessage"));
    message->setWordWrap(true);
    message->setFixedWidth(signupTextWidth);
    m_addressField = new QLineEdit;
    m_addressField->setObjectName(QStringLiteral("addressField"));
    m_addressField->setAccessibleName(text("SignUpAddress"));
    m_addressField->setPlaceholderText(text("SignUpAddress"));

    auto *buttons = new QDialogButtonBox;
    QPushButton *joinButton = buttons->addButton(text("SignUpJoin"), QDialogButtonBox::AcceptRole);
    joinButton->setObjectName(QStringLiteral("joinButton"));
    joinButton->setDefault(true);
    QPushButton *cancelButton = buttons->addButton(text("CancelLabel"), QDialogButtonBox::RejectRole);
    cancelButton->setObjectName(QStringLiteral("cancelButton"));

    auto *words = new QVBoxLayout;
    words->setSpacing(spacing::group);
    words->addWidget(title);
    words->addWidget(message);
    words->addWidget(m_addressField);
    auto *content = new QHBoxLayout;
    content->setSpacing(spacing::content);
    content->addWidget(picture, 0, Qt::AlignTop);
    content->addLayout(words);
    auto *layout = new QVBoxLayout(m_window);
    layout->setContentsMargins(spacing::aroundContent);
    layout->setSpacing(spacing::content);
    layout->addLayout(content);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(buttons, &QDialogButtonBox::accepted, this, &EListSignupController::join);
    connect(buttons, &QDialogButtonBox::rejected, m_window, &QDialog::reject);
}

EListSignupController::~EListSignupController() = default;

void EListSignupController::display()
{
    m_addressField->setText(desktop::userMailAddress());
    m_window->adjustSize();
    centreOnScreen(*m_window);
    showInFront(*m_window);
    m_addressField->setFocus();
}

void EListSignupController::whenClosed(QObject *receiver, std::function<void()> act) const
{
    if (m_window->isVisible())
        connect(m_window, &QDialog::finished, receiver, std::move(act), Qt::SingleShotConnection);
    else
        act();
}

void EListSignupController::join()
{
    const QString address = m_addressField->text().trimmed();
    if (address.isEmpty()) {
        beep();
        return;
    }
    const QUrl mail = desktop::mailUrl(QLatin1String(product::listAddress), QString::fromUtf16(mailSubject), address);
    if (desktop::openUrlFrom(m_window, mail))
        m_window->accept();
}

} // namespace brinemark

#include "moc_EListSignupController.cpp"
