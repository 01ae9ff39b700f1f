// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/PictureWell.h"
#include "livestock/views/editor/ItemSheet.h"
#include "livestock/views/search/FishSearchSheet.h"
#include "support/AppFixture.h"

#include <QDropEvent>
#include <QMimeData>
#include <QStackedWidget>
#include <QTableView>
#include <QTextEdit>

using namespace brinemark;
using namespace brinemark::test;

/// A new fish with the real windows and the program's own profiles.
class TestNewLivestock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFishFromAFoundProfile()
    {
        Program program;
        program.start(program.copyOf(QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml")));
        program.window().show();
        Tank &tank = *program.tree().list().at(0);
        program.controller().selectInTree(tank);
        const int before = tank.fish()->count();
        program.controller().performCommand(Command::NewFish);
        auto *editor = awaitWindow<ItemSheet>("itemSheet");
        QVERIFY(editor);
        QTest::mouseClick(editor->searchButton, Qt::LeftButton);
        auto *search = awaitWindow<FishSearchSheet>("fishSearchPanel");
        QVERIFY(search && !editor->isVisible());
        search->nameField->selectAll();
        QTest::keyClicks(search->nameField, QStringLiteral("tetra"));
        QTest::keyClick(search->nameField, Qt::Key_Return);
        const QAbstractItemModel &found = *search->resultsList->model();
        QModelIndexList neon;
        QTRY_VERIFY(
            !(neon = found.match(found.index(0, 0), Qt::DisplayRole, QStringLiteral("Neon Tetra"), 1, Qt::MatchExactly))
                 .isEmpty());
        search->resultsList->scrollTo(neon.first());
        const QPoint cell = search->resultsList->visualRect(neon.first()).center();
        QTest::mouseClick(search->resultsList->viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseDClick(search->resultsList->viewport(), Qt::LeftButton, {}, cell);
        QTRY_VERIFY(editor->isVisible() && !search->isVisible());
        QCOMPARE(editor->form.shownText(u"sciName"), QStringLiteral("Paracheirodon innesi"));

        QImage photograph(2000, 1500, QImage::Format_RGB32);
        photograph.fill(Qt::red);
        const QString photographFile = program.filePath(QStringLiteral("photograph.jpg"));
        QVERIFY(photograph.save(photographFile));
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(photographFile)});
        editor->tabView->setCurrentIndex(2);
        QWidget *well = editor->findChild<QAbstractScrollArea *>(QStringLiteral("fishImageView"))->viewport();
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(well, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(well, &drop);
        QCOMPARE(tank.fish()->count(), before);
        QTest::mouseClick(editor->saveButton, Qt::LeftButton);
        QCOMPARE(tank.fish()->count(), before + 1);
        auto &added = static_cast<ItemData &>(*tank.fish()->recordAt(before));
        QCOMPARE(program.tree().currentSelectedItem(), TreeItem(added));
        QCOMPARE(program.controller().currentView(), MainView::LivestockItem);
        QWidget *profile = program.window().mainView().currentWidget();
        QVERIFY(profile->findChild<QTextEdit *>()->toPlainText().startsWith(QStringLiteral("Neon Tetra\n")));

        program.controller().performCommand(Command::Save);
        QTRY_VERIFY(!program.document().isEdited());
        TankList read;
        QVERIFY(readTanks(readTankDictionary(program.path()).root, program.path(), read).ok);
        const auto &stored = static_cast<const ItemData &>(*read.at(0)->fish()->recordAt(before));
        QCOMPARE(stored.name, QStringLiteral("Neon Tetra"));
        QVERIFY(stored.ph > 0);
        QCOMPARE(stored.itemImage.image().size(), QSize(1600, 1200));
    }
};

BRINEMARK_APP_TEST(TestNewLivestock)
#include "tst_new_livestock.moc"
