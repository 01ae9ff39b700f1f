// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

#include <functional>

namespace brinemark
{

class TankList;

/// The application object. It knows the list of tanks of the open file, which the tank tree hands in, and takes the
/// desktop's requests to open a file.
class BrinemarkApp : public QApplication
{
    Q_OBJECT

public:
    BrinemarkApp(int &argc, char **argv);
    ~BrinemarkApp() override;

    /// The application object of this process.
    static BrinemarkApp &sharedInstance();

    [[nodiscard]] TankList *appTankList() const;
    void setAppTankList(TankList *list); ///< the very list of the tank tree, not a copy

Q_SIGNALS:
    void openFileRequested(const QString &path); ///< the desktop hands over a file (macOS sends it as an event)
    void quitRequested();                        ///< the desktop wants the program to end

protected:
    bool event(QEvent *event) override;
};

} // namespace brinemark
