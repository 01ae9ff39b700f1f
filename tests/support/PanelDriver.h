// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <optional>

namespace brinemark::test
{

/// The visible window of this object name; null when there is none.
template <class Window>
Window *shownWindow(const char *name)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == QLatin1String(name))
            return qobject_cast<Window *>(window);
    }
    return nullptr;
}

/// Waits for a window to become visible; null when it does not.
template <class Window = QDialog>
Window *awaitWindow(const char *name)
{
    return QTest::qWaitFor([name] { return shownWindow<Window>(name) != nullptr; }, 2000) ? shownWindow<Window>(name)
                                                                                          : nullptr;
}

/// Waits for the open or save panel, sets its make-default box, and chooses `path`, or cancels when `path` is empty.
/// False when no panel appears.
inline bool answerPanel(const char *name, const QString &path, std::optional<bool> makeDefault = {})
{
    auto *panel = awaitWindow<QFileDialog>(name);
    if (!panel)
        return false;
    if (makeDefault)
        panel->findChild<QCheckBox *>("makeDefaultCheck")->setChecked(*makeDefault);
    if (path.isEmpty()) {
        panel->reject();
    } else {
        panel->findChild<QLineEdit *>("fileNameEdit")->setText(path);
        QMetaObject::invokeMethod(panel, "accept");
    }
    QCoreApplication::processEvents(); // the effect of the answer is queued
    return !shownWindow<QFileDialog>(name);
}

/// Answers the next question of the panel (whether a file may be replaced) as soon as it is visible. Gives up after two
/// seconds.
inline void onNextQuestion(QMessageBox::StandardButton answer, int triesLeft = 200)
{
    QTimer::singleShot(10, qApp, [answer, triesLeft] {
        auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (question)
            question->button(answer)->click();
        else if (triesLeft > 0)
            onNextQuestion(answer, triesLeft - 1);
    });
}

} // namespace brinemark::test
