// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TwoTanks.h"
#include "base/plist/XmlReader.h"
#include "model/RecordDict.h"

#include <QClipboard>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

/// Counts the notifications of deleted activities.
struct DeletedActivities : ModelObserver {
    int count = 0;
    void scheduleDataDeleted(ScheduleData &) override { ++count; }
};

/// Presses a button of the alert on screen; false when there is none.
bool answer(const char *button)
{
    return pressAlertButton(button) && QTest::qWaitFor([] { return !shownAlert(); });
}

/// The livestock containers, with their identifier on the pasteboard and the question before deleting a record.
void livestockKinds()
{
    columns<ContainerKind, QString, QString>("kind", "context", "question");
    row("fish", ContainerKind::Fish, "TankFish", text("DeleteFishWarning"));
    row("plant", ContainerKind::Plant, "TankPlant", text("DeletePlantWarning"));
    row("invert", ContainerKind::Invert, "TankInvert", text("DeleteInvertWarning"));
    row("coral", ContainerKind::Coral, "TankCoral", text("DeleteCoralWarning"));
}

} // namespace

class TestTankCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::clipboard()->clear(); }

    // ---- selecting

    void selectionChoosesTheView()
    {
        TwoTanks w;
        w.tree.select(TreeItem(*w.second));
        const auto expect = [&](const TreeItem &item, MainView view) {
            QVERIFY(w.save());
            QVERIFY(!w.window.isWindowModified());
            w.tree.select(item);
            QCOMPARE(w.currentView(), view);
            QCOMPARE(w.currentTank(), item.tank);
            QCOMPARE(w.tree.currentSelectedItem(), item);
            QVERIFY(w.window.isWindowModified());
        };
        expect(TreeItem(*w.first), MainView::Tank);
        w.outline->expandAll();
        constexpr std::array views{MainView::LivestockGroup, MainView::LivestockGroup, MainView::LivestockGroup,
                                   MainView::LivestockGroup, MainView::Conditions,     MainView::Schedule,
                                   MainView::Inventory,      MainView::Expenses,       MainView::Notes};
        for (std::size_t kind = 0; kind < containerCount; ++kind) {
            expect(TreeItem(*w.first->container(ContainerKind(kind))), views[kind]);
            QCOMPARE(w.changes(), 1U);
        }
        for (const auto &record : w.records) {
            expect(TreeItem(*record), MainView::LivestockItem);
            QCOMPARE(w.changes(), 1U);
        }
        QVERIFY(w.save());
        w.outline->setCurrentIndex({});
        QCOMPARE(w.currentView(), MainView::None);
        QCOMPARE(w.currentTank(), nullptr);
        QCOMPARE(w.changes(), 1U);
    }

    void updateDisplayCountsNothing()
    {
        TwoTanks w;
        w.tree.select(TreeItem(w.record(ContainerKind::Coral)));
        QVERIFY(w.save());
        w.views.clear();
        w.tree.updateDisplay();
        QCOMPARE(w.changes(), 0U);
        QVERIFY(!w.window.isWindowModified());
        QCOMPARE(w.views, QList<MainView>{MainView::LivestockItem}); // the main view follows
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(w.record(ContainerKind::Coral)));
    }

    // ---- opening and closing

    void openingAndClosing()
    {
        TwoTanks w;
        w.tree.select(TreeItem(*w.second));
        QVERIFY(w.save());
        w.outline->expand(w.indexOf(TreeItem(*w.first)));
        QVERIFY(w.first->tankExpanded);
        QCOMPARE(w.changes(), 1U);
        w.outline->collapse(w.indexOf(TreeItem(*w.first)));
        QVERIFY(!w.first->tankExpanded);
        QCOMPARE(w.changes(), 2U);
        w.outline->expand(w.indexOf(TreeItem(*w.first)));
        for (int kind = 0; kind < 4; ++kind) {
            const bool &flag = *w.first->expandedFlag(ContainerKind(kind));
            for (const bool open : {true, false, true}) {
                const quint32 before = w.changes();
                w.outline->setExpanded(w.indexOf(*w.first, ContainerKind(kind)), open);
                QCOMPARE(flag, open);
                QCOMPARE(w.changes(), before + 1);
            }
        }
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.second));
        // Collapsing a row selects it if the selection was below it.
        w.tree.select(TreeItem(*w.records[0]));
        w.outline->collapse(w.indexOf(TreeItem(*w.first)));
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.first));
        QCOMPARE(w.currentView(), MainView::Tank);
    }

    void openRowsComeBackFromTheFile()
    {
        const QString path = QDir::home().filePath("tanks.xml");
        {
            TwoTanks w;
            w.outline->collapseAll();
            w.outline->expand(w.indexOf(TreeItem(*w.first)));
            w.outline->expand(w.indexOf(*w.first, ContainerKind::Coral));
            w.tree.select(TreeItem(w.record(ContainerKind::Coral)));
            QVERIFY(w.save());
        }
        TreeWindow w;
        QVERIFY(w.read(path));
        QVERIFY(w.tree.isExpanded(TreeItem(w.tank(0))));
        QVERIFY(!w.tree.isExpanded(TreeItem(w.tank(1))));
        for (const ContainerKind kind : {ContainerKind::Fish, ContainerKind::Plant, ContainerKind::Invert})
            QVERIFY(!w.tree.isExpanded(TreeItem(*w.tank(0).container(kind))));
        QVERIFY(w.tree.isExpanded(TreeItem(*w.tank(0).coral())));
        QCOMPARE(w.tree.currentSelectedItem().name(), "coral"); // the file stores the selected row
        QCOMPARE(w.document.changeCount(), 0U);
    }

    // ---- deleting

    void deleteRecord_data() { livestockKinds(); }

    void deleteRecord()
    {
        const auto [kind, question] = fetch<ContainerKind, QString>("kind", "question");
        TwoTanks w;
        const auto record = std::static_pointer_cast<ItemData>(w.record(kind).shared_from_this());
        record->name = "50 %@ \"^0\"";
        Container &list = *w.first->container(kind);
        const int before = list.count();
        w.tree.select(TreeItem(*record));
        QVERIFY(w.save());

        QTest::keyClick(w.outline, Qt::Key_Delete);
        QVERIFY(shownAlert());
        QCOMPARE(shownAlert()->title(), formatText(question, {record->name}));
        QVERIFY(shownAlert()->title().contains(record->name));
        QCOMPARE(shownAlert()->message(), text("CannotUndoMessage"));
        QVERIFY(answer("alternateButton"));
        QCOMPARE(list.count(), before);
        QCOMPARE(w.changes(), 0U);

        QTest::keyClick(w.outline, Qt::Key_Backspace);
        QVERIFY(answer("defaultButton"));
        QCOMPARE(list.count(), before - 1);
        QVERIFY(!list.contains(record.get()));
        QVERIFY(w.window.isWindowModified());
        QVERIFY(!w.undo.canUndo());
        QVERIFY(!w.tree.currentSelectedItem().isNone());
    }

    void deleteTank()
    {
        TwoTanks w;
        DeletedActivities deleted;
        w.tree.select(TreeItem(*w.first));
        w.tree.deleteTankEntry();
        QVERIFY(shownAlert());
        QCOMPARE(shownAlert()->title(), formatText(text("DeleteTankWarning"), {"first"}));
        QVERIFY(answer("alternateButton"));
        QCOMPARE(w.tree.list().count(), 2);

        QVERIFY(w.save());
        w.tree.deleteTankEntry();
        QVERIFY(answer("defaultButton"));
        QCOMPARE(w.tree.list().count(), 1);
        QCOMPARE(deleted.count, 2);
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.second)); // the second tank is now in the first row
        QCOMPARE(w.currentTank(), w.second.get());
        QVERIFY(w.window.isWindowModified());
    }

    void deleteTheLastTank()
    {
        TreeWindow w(QDir::home().filePath("one.xml"));
        w.addTank("only");
        QVERIFY(w.save());
        w.tree.deleteTankEntry();
        QVERIFY(answer("defaultButton"));
        QCOMPARE(w.document.representedFilename(), QString());
        QCOMPARE(w.tree.list().count(), 1);
        QCOMPARE(w.tank(0).name, text("NewTankName"));
        QCOMPARE(w.currentTank(), &w.tank(0));
    }

    /// The record or tank is deleted by other means while the question is on screen.
    void deleteWhatIsGone()
    {
        TwoTanks w;
        w.tree.select(TreeItem(*w.records[0]));
        w.tree.deleteItemDataEntry();
        w.first->fish()->removeEveryOccurrence(w.records[0].get());
        QVERIFY(answer("defaultButton"));
        QCOMPARE(w.fishOf(*w.first), QStringList({"two", "three", "four"}));

        DeletedActivities deleted;
        w.tree.select(TreeItem(*w.first));
        w.tree.deleteTankEntry();
        w.tree.list().removeAt(0);
        QVERIFY(answer("defaultButton"));
        QCOMPARE(w.tree.list().count(), 1);
        QCOMPARE(deleted.count, 0);
        w.tree.updateDisplay();
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.second));
    }

    void withoutASelectionNothingIsDeleted()
    {
        TwoTanks w;
        w.outline->setCurrentIndex({});
        w.tree.deleteTankEntry();
        w.tree.deleteItemDataEntry();
        QVERIFY(!shownAlert());
    }

    // ---- copy and paste

    void copyAndPaste_data() { livestockKinds(); }

    void copyAndPaste()
    {
        const auto [kind, context] = fetch<ContainerKind, QString>("kind", "context");
        TwoTanks w;
        QImage picture(9, 7, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        ItemData &source = w.record(kind);
        source.name = QString::fromUtf8("Größe & <Riff>");
        source.reefSafe = reefsafe::yes;
        source.ph = 8.25F;
        source.itemImage = ItemImage::fromImage(picture);
        w.tree.select(TreeItem(source));
        w.tree.copy();

        const QMimeData *data = QApplication::clipboard()->mimeData();
        QCOMPARE(data->text(), source.name);
        QCOMPARE(*plist::readXml(data->data(pasteboard::itemContext)).value.string(), context);
        QVERIFY(plist::readXml(data->data(pasteboard::livestock)).value.dict());

        w.tree.select(TreeItem(*w.second));
        w.outline->collapse(w.indexOf(TreeItem(*w.second)));
        QVERIFY(w.save());
        w.tree.paste();
        const Container &list = *w.second->container(kind);
        QCOMPARE(list.count(), 1);
        const auto pasted = std::static_pointer_cast<ItemData>(list.recordAt(0));
        QVERIFY(pasted.get() != &source);
        QCOMPARE(pasted->name, source.name);
        QCOMPARE(pasted->itemContext(), source.itemContext());
        QCOMPARE(pasted->reefSafe, reefsafe::yes); // copied by its file form, which includes this field
        QCOMPARE(pasted->ph, 8.25F);
        QCOMPARE(pasted->itemImage.image().convertToFormat(picture.format()), picture);
        QCOMPARE(pasted->tank.get(), w.second.get());
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*pasted));
        QVERIFY(w.second->tankExpanded && *w.second->expandedFlag(kind));
        QVERIFY(w.outline->isExpanded(w.indexOf(*w.second, kind)));
        QVERIFY(w.window.isWindowModified());
    }

    void copyTakesOnlyRecords()
    {
        TwoTanks w;
        QApplication::clipboard()->setText("before");
        w.tree.select(TreeItem(*w.first));
        QVERIFY(!w.tree.canCopy());
        w.tree.copy();
        w.tree.select(TreeItem(*w.first->fish()));
        w.tree.copy();
        QCOMPARE(QApplication::clipboard()->text(), "before");
        QVERIFY(!w.tree.canPaste());
        w.tree.paste();
        w.tree.select(TreeItem(*w.records[0]));
        QVERIFY(w.tree.canCopy());
        w.tree.copy();
        w.outline->setCurrentIndex({});
        w.tree.paste(); // without a current tank, nothing is pasted
        QCOMPARE(w.fishOf(*w.first).size(), 4);
        QVERIFY(w.fishOf(*w.second).isEmpty());
    }

    void damagedPasteboard_data()
    {
        test::columns<QByteArray, QByteArray>("livestock", "context");
        const QByteArray good = plist::writeXml(recordDict(FishData("fish", nullptr)));
        const QByteArray fish = xml("TankFish");
        QTest::newRow("nothing in it") << QByteArray() << QByteArray();
        QTest::newRow("no context") << good << QByteArray();
        QTest::newRow("a journal") << plist::writeXml(recordDict(NoteData())) << xml("TankNote");
        QTest::newRow("context is cut off") << good << fish.chopped(12);
        QTest::newRow("no record") << QByteArray() << fish;
        QTest::newRow("a text for a record") << xml("fish available") << fish;
        QTest::newRow("record cut off") << good.left(good.size() / 2) << fish;
        QByteArray wrong = good;
        wrong.replace("<string>fish</string>", "<array/>");
        QVERIFY(wrong != good);
        QTest::newRow("name of a wrong kind") << wrong << fish;
    }

    void damagedPasteboard()
    {
        const auto [livestock, context] = fetch<QByteArray, QByteArray>("livestock", "context");
        TwoTanks w;
        w.tree.select(TreeItem(*w.second));
        QVERIFY(w.save());
        QApplication::clipboard()->setMimeData(pasteboardWith(livestock, context).release());
        w.tree.paste();
        QCOMPARE(w.changes(), 0U);
        for (const Container *container : w.second->tankItemsArray())
            QCOMPARE(container->count(), 0);
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.second));
    }

    // ---- context menu

    void contextMenu()
    {
        TwoTanks w;
        w.tree.select(TreeItem(*w.records[0]));
        const auto menuAt = [&](const TreeItem &item) -> QMenu * {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const QPoint position = w.rectOf(item).center();
            QContextMenuEvent event(QContextMenuEvent::Mouse, position, w.outline->viewport()->mapToGlobal(position));
            QApplication::sendEvent(w.outline->viewport(), &event);
            return w.outline->findChild<QMenu *>("tankListMenu");
        };
        const auto enabled = [](const QMenu *menu) {
            QStringList names;
            for (const QAction *action : menu->actions()) {
                if (!action->isSeparator() && action->isEnabled())
                    names << action->text();
            }
            return names;
        };
        const QString rename = text("MenuTreeRename");
        const QString remove = text("DeleteTitle");
        for (const TreeItem &item : {TreeItem(*w.first->fish()), TreeItem(*w.first->note())}) {
            QVERIFY(!menuAt(item));
            QCOMPARE(w.tree.currentSelectedItem(), item); // the row under the mouse is selected, but has no menu
        }
        QMenu *menu = menuAt(TreeItem(*w.second));
        QVERIFY(menu);
        QCOMPARE(enabled(menu), QStringList({rename, remove}));
        menu->close();

        menu = menuAt(TreeItem(*w.records[0]));
        QVERIFY(menu);
        QCOMPARE(enabled(menu), QStringList({text("Edit..."), rename, text("MenuEditCopy"), remove}));
        menu->actions().at(0)->trigger();
        QCOMPARE(w.edited, QStringList("fish"));
        menu->close();
        w.tree.copy();
        menu = menuAt(TreeItem(*w.second));
        QVERIFY(menu);
        QCOMPARE(enabled(menu), QStringList({rename, text("MenuEditPaste"), remove}));
        menu->actions().last()->trigger();
        QVERIFY(shownAlert());
        QVERIFY(pressAlertButton("alternateButton"));
        menu->close();
    }

    // ---- mouse and keyboard

    void doubleClick()
    {
        TwoTanks w;
        const auto doubleClick = [&](const TreeItem &item) {
            QTest::mouseDClick(w.outline->viewport(), Qt::LeftButton, {}, w.rectOf(item).center());
        };
        w.outline->collapseAll();
        doubleClick(TreeItem(*w.first));
        QVERIFY(w.first->tankExpanded);
        doubleClick(TreeItem(*w.first));
        QVERIFY(w.first->tankExpanded); // a double click does not collapse a tank
        doubleClick(TreeItem(*w.first->invert()));
        QVERIFY(w.first->invertExpanded);
        doubleClick(TreeItem(w.record(ContainerKind::Invert)));
        QCOMPARE(w.edited, QStringList("invert"));
        doubleClick(TreeItem(*w.first->invert()));
        QVERIFY(!w.first->invertExpanded);
        const QPoint empty(5, w.outline->viewport()->height() - 2);
        QTest::mouseDClick(w.outline->viewport(), Qt::LeftButton, {}, empty);
        QCOMPARE(w.edited.size(), 1);
    }

    void returnKey()
    {
        TwoTanks w;
        w.outline->collapseAll();
        w.outline->expand(w.indexOf(TreeItem(*w.first)));
        w.tree.select(TreeItem(*w.first->fish()));
        QTest::keyClick(w.outline, Qt::Key_Return);
        QVERIFY(w.first->fishExpanded);
        w.tree.select(TreeItem(*w.records[0]));
        QTest::keyClick(w.outline, Qt::Key_Return);
        QCOMPARE(w.edited, QStringList("fish"));
        w.outline->setCurrentIndex({});
        QTest::keyClick(w.outline, Qt::Key_Return);
        QCOMPARE(w.edited.size(), 1);
    }

    void clickBesideTheRowsKeepsTheSelection()
    {
        TwoTanks w;
        w.tree.select(TreeItem(*w.first));
        QTest::mouseClick(w.outline->viewport(), Qt::LeftButton, {}, {5, w.outline->viewport()->height() - 2});
        w.click(TreeItem(*w.first));
        QTest::mouseClick(w.outline->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          w.rectOf(TreeItem(*w.first)).center());
        QCOMPARE(w.currentTank(), w.first.get());
        QVERIFY(w.outline->selectionModel()->isSelected(w.indexOf(TreeItem(*w.first))));
    }
};

BRINEMARK_TEST(QApplication, TestTankCommands)
#include "tst_tank_commands.moc"
