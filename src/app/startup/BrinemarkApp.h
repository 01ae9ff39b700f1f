// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

#include <functional>

namespace brinemark
{

class TankList;

/// The application object. It gives access to the list of tanks of the open file, which the tank tree provides, and
/// receives the desktop's requests to open a file or to quit.
class BrinemarkApp : public QApplication
{
    Q_OBJECT

public:
    BrinemarkApp(int &argc, char **argv);
    ~BrinemarkApp() override;

    /// The application object of this process.
    static BrinemarkApp &sharedInstance();

    // Kept for a scripting interface, which starts from the application object; no caller yet.
    [[nodiscard]] TankList *appTankList() const;
    void setAppTankList(TankList *list); ///< the tank tree's own list, not a copy

Q_SIGNALS:
    void openFileRequested(const QString &path); ///< the desktop asks to open a file (macOS sends an event)
    void quitRequested();                        ///< the desktop asks the program to quit

protected:
    bool event(QEvent *event) override;
};

} // namespace brinemark
