// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QDialog;
class QProgressBar;
class QWidget;

namespace brinemark
{

class TankList;

/// Has the pictures of the open document converted before it is written, under a sheet with a progress bar. The program
/// stays responsive; the sheet keeps the document from being changed in the main window. Object names: "picturesSheet",
/// "picturesProgress", "cancelButton".
class PicturePreparation : public QObject
{
    Q_OBJECT

public:
    PicturePreparation(const TankList &tanks, QWidget *window);
    ~PicturePreparation() override;

    /// Calls `then(true)` when all pictures are converted: before it returns if they are already, or if nobody watches
    /// the run (the writer then converts them). Calls `then(false)` when the user calls the save off. While
    /// it is running, a second call waits.
    void prepare(const QString &fileName, std::function<void(bool ready)> then);

    /// While pictures are being converted, keeps the command until the save has ended, and returns true. Otherwise
    /// returns false.
    bool delays(std::function<void()> command);

private:
    void update();
    void end(bool ready);
    void openProgressSheet(const QString &fileName, int pictures);

    const TankList &m_tanks;
    QWidget *m_window;
    QDialog *m_sheet = nullptr; ///< null when it is not running
    QProgressBar *m_bar = nullptr;
    std::function<void(bool)> m_then;
    std::vector<std::function<void()>> m_delayed;
};

} // namespace brinemark
