// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/views/TankDataController.h"
#include "chemistry/views/TankDataEntryController.h"
#include "support/LocalNumber.h"
#include "support/RecordingShell.h"
#include "ui/Alerts.h"
#include "ui/HelpWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

namespace brinemark::test
{

/// A shell with one tank, "Cube", and functions that drive the sheet that edits it.
class TankSheetDriver
{
public:
    static constexpr int tagRole = Qt::UserRole; ///< of the chooser's items
    static constexpr int keyRole = Qt::UserRole + 1;

    TankSheetDriver()
    {
        shell.appendTank(std::make_shared<Tank>(QStringLiteral("Cube")));
        shell.window.resize(800, 700); // leaves room below the targets
        shell.window.show();
    }
    ~TankSheetDriver()
    {
        HelpWindow::destroyShared();
        TankDataController::destroyShared();
        TankDataEntryController::destroyShared();
    }
    TankSheetDriver(const TankSheetDriver &) = delete;
    TankSheetDriver &operator=(const TankSheetDriver &) = delete;

    [[nodiscard]] Tank &tank() const { return *shell.current; }
    [[nodiscard]] QDialog *sheet() const { return shell.window.findChild<QDialog *>(QStringLiteral("tankSheet")); }
    [[nodiscard]] bool isUp() const { return sheet() && sheet()->isVisible(); }
    template <class Widget = QWidget>
    [[nodiscard]] Widget *control(const QByteArray &name) const
    {
        return sheet()->findChild<Widget *>(QString::fromLatin1(name));
    }

    void open(std::shared_ptr<Tank> edited, bool withCancel, const QString &title)
    {
        TankDataEntryController::sharedInstance().displayTank(std::move(edited), withCancel, title);
        QVERIFY(isUp());
        QVERIFY(QTest::qWaitForWindowActive(sheet()));
    }
    void open(const QString &title = {}) { open(tank().shared_from_this(), false, title); }
    void choose(const QString &targetKey)
    {
        auto *popup = control<QComboBox>("warningPopup");
        popup->setCurrentIndex(popup->findData(targetKey, keyRole));
    }
    void click(const QByteArray &name) { control<QAbstractButton>(name)->click(); }
    static void focus(QWidget *field)
    {
        field->setFocus(Qt::TabFocusReason);
        QVERIFY(field->hasFocus());
    }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    void pressIn(const QByteArray &name, Qt::Key key) { QTest::keyClick(control<>(name), key); }
    /// Replaces the field's text by typing, and leaves the field.
    void type(const QByteArray &name, const QString &typed)
    {
        auto *field = control<QLineEdit>(name);
        focus(field);
        field->selectAll();
        press(Qt::Key_Backspace);
        QTest::keyClicks(field, typed);
        press(Qt::Key_Tab);
    }

    RecordingShell shell;
};

} // namespace brinemark::test
