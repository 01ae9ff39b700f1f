// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QMainWindow>
#include <QTextStream>
#include <QTimer>

// The baseline for start-up time: the smallest main window that the toolkit can show. Reports its first paint with the
// line that the program writes to its log.

namespace
{

class BareWindow : public QMainWindow
{
protected:
    bool event(QEvent *event) override
    {
        const bool handled = QMainWindow::event(event);
        if (event->type() == QEvent::Paint && !m_shown) {
            m_shown = true;
            QTextStream(stderr) << "the main window is on screen" << Qt::endl;
        }
        return handled;
    }

private:
    bool m_shown = false;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    BareWindow window;
    window.resize(1080, 720);
    window.show();
    return QApplication::exec();
}
