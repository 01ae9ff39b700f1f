// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/startup/Appearance.h"
#include "support/TestProgram.h"
#include "ui/Colours.h"
#include "ui/lists/RecordTableView.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QVBoxLayout>

using namespace brinemark;

namespace
{

/// The best contrast that one of the pixels right of `outside` has both to that pixel and to the inside of fields.
/// Boxes have straight sides, so a row of pixels crosses their outline. At 125 % an outline can lie between two pixels.
double outlineContrast(QWidget &window, QPoint outside, int pixels)
{
    const QColor inside = window.palette().color(QPalette::Base);
    double least = 21;
    for (const double ratio : {1.0, 1.25}) {
        QImage picture(window.size() * ratio, QImage::Format_RGB32);
        picture.setDevicePixelRatio(ratio);
        window.render(&picture);
        const QPoint start = (QPointF(outside) * ratio).toPoint();
        double best = 1;
        for (int x = 1; x <= pixels * ratio; ++x) {
            const QColor pixel = picture.pixelColor(start + QPoint(x, 0));
            best = std::max(best, std::min(contrast(pixel, picture.pixelColor(start)), contrast(pixel, inside)));
        }
        least = std::min(least, best);
    }
    return least;
}

} // namespace

class TestAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyBoxesAndFieldsCanBeSeen()
    {
        for (const bool dark : {false, true}) {
            prepareAppearance(dark);
            QCOMPARE(isDark(QApplication::palette()), dark);
            QWidget window;
            auto *rows = new QVBoxLayout(&window);
            QList<QWidget *> controls{new QCheckBox, new QRadioButton, new QLineEdit, new QLineEdit,
                                      new QComboBox, new QComboBox,    new QSpinBox,  new QPlainTextEdit};
            qobject_cast<QComboBox *>(controls[5])->setEditable(true);
            for (QWidget *control : controls)
                rows->addWidget(control);
            controls[3]->setObjectName(QStringLiteral("focused"));
            QStandardItemModel boxes(1, 1);
            boxes.setData(boxes.index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
            auto *table = new RecordTableView([] {});
            table->setModel(&boxes);
            rows->addWidget(table);
            window.show();
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            controls[3]->setFocus();

            const auto check = [&](QWidget &in, const QString &name, QPoint outside, int pixels) {
                const double found = outlineContrast(in, outside, pixels);
                QVERIFY2(found >= 3, qPrintable(QStringLiteral("%1, dark %2: %3").arg(name).arg(dark).arg(found)));
            };
            for (const QWidget *control : std::as_const(controls)) {
                const QPoint left(control->x(), control->geometry().center().y());
                check(window, QLatin1String(control->metaObject()->className()) + control->objectName(),
                      left - QPoint(3, 0), 5);
            }
            const QRect cell = table->visualRect(boxes.index(0, 0));
            const QPoint left = table->viewport()->mapTo(&window, QPoint(cell.left(), cell.center().y()));
            check(window, QStringLiteral("cell"), left + QPoint(2, 0), 12);

            QMenu menu;
            QAction *action = menu.addAction(QStringLiteral("Columns"));
            action->setCheckable(true);
            menu.popup({});
            const QRect item = menu.actionGeometry(action);
            check(menu, QStringLiteral("menu"), {item.left() + 1, item.center().y()}, 12);
        }
    }
};

BRINEMARK_TEST(QApplication, TestAppearance)
#include "tst_appearance.moc"
