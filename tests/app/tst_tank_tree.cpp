// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TreeWindow.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QLineEdit>
#include <QScrollBar>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

const QString sampleFile = QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml");
constexpr auto testerMode = QAbstractItemModelTester::FailureReportingMode::QtTest;

QString textOf(const QModelIndex &index)
{
    return index.data().toString();
}

QStringList childTexts(const QAbstractItemModel &model, const QModelIndex &parent)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row)
        texts << textOf(model.index(row, 0, parent));
    return texts;
}

/// The editor that is open in the tree; null when there is none.
QLineEdit *openEditor(const TreeWindow &w)
{
    return w.outline->viewport()->findChild<QLineEdit *>();
}

/// Types a name into the editor that F2 opens on the selected row, and ends it with a key.
void typeName(const TreeWindow &w, const QString &name, Qt::Key endsWith = Qt::Key_Return)
{
    QTest::keyClick(w.outline, Qt::Key_F2);
    QLineEdit *editor = openEditor(w);
    QVERIFY(editor);
    editor->selectAll();
    if (name.isEmpty())
        QTest::keyClick(editor, Qt::Key_Delete);
    else
        QTest::keyClicks(editor, name);
    QTest::keyClick(editor, endsWith);
    QTRY_VERIFY(!openEditor(w));
}

} // namespace

class TestTankTree : public QObject
{
    Q_OBJECT

    QString savePath() const { return QDir::home().filePath("tree.xml"); }

private Q_SLOTS:
    void sampleFileIsAModel()
    {
        TreeWindow w(savePath());
        const QAbstractItemModelTester tester(w.model, testerMode);
        QVERIFY(w.read(sampleFile));
        w.outline->expandAll();
        w.tree.updateDisplay();
        QVERIFY(!w.read({})); // returns false for the new untitled document
        QCOMPARE(w.model->rowCount(), 1);
        w.tree.list().clear();
        w.tree.reload();
        QCOMPARE(w.model->rowCount(), 0);
        QVERIFY(!w.model->hasChildren() && w.model->itemAt({}).isNone());
    }

    void shapeAndOrder()
    {
        TreeWindow w;
        QVERIFY(w.read(sampleFile));
        QCOMPARE(w.model->rowCount(), w.tree.list().count());
        for (int row = 0; row < w.model->rowCount(); ++row) {
            Tank &tank = w.tank(row);
            const QModelIndex tankIndex = w.model->index(row, 0);
            QCOMPARE(textOf(tankIndex), tank.name);
            QVERIFY(w.model->hasChildren(tankIndex));
            const QStringList names{text("FishName"),      text("PlantName"),     text("InvertName"),
                                    text("CoralName"),     text("ConditionName"), text("ScheduleName"),
                                    text("InventoryName"), text("ExpenseName"),   text("NoteName")};
            QCOMPARE(childTexts(*w.model, tankIndex), names);
            for (int i = 0; i < int(containerCount); ++i) {
                const Container &container = *tank.container(ContainerKind(i));
                const QModelIndex index = w.model->index(i, 0, tankIndex);
                const bool opens = i < 4;
                QCOMPARE(w.model->hasChildren(index), opens);
                QCOMPARE(w.model->rowCount(index), opens ? container.count() : 0);
                QVERIFY(!(index.flags() & Qt::ItemIsEditable) && !(index.flags() & Qt::ItemIsDragEnabled));
                for (int r = 0; r < w.model->rowCount(index); ++r) {
                    const auto item = std::static_pointer_cast<ItemData>(container.recordAt(r));
                    const QModelIndex record = w.model->index(r, 0, index);
                    QCOMPARE(textOf(record), item->name);
                    QVERIFY(!w.model->hasChildren(record));
                    QCOMPARE(w.model->indexOf(TreeItem(*item)), record);
                    QCOMPARE(record.parent(), index);
                }
            }
        }
    }

    void textsAreBlankWithoutACurrentTank()
    {
        TreeWindow w;
        w.addTank("A");
        const QModelIndex tank = w.model->index(0, 0);
        const QModelIndex fish = w.model->index(0, 0, tank);
        QCOMPARE(textOf(tank), "A");
        w.outline->setCurrentIndex({});
        QCOMPARE(w.currentTank(), nullptr);
        QCOMPARE(w.views.last(), MainView::None);
        QVERIFY(!tank.data().isValid());
        QVERIFY(!fish.data().isValid());
        w.outline->setCurrentIndex(fish);
        QCOMPARE(textOf(tank), "A");
    }

    void rename_data()
    {
        QTest::addColumn<bool>("record");
        QTest::newRow("tank") << false;
        QTest::newRow("record") << true;
    }

    void rename()
    {
        QFETCH(bool, record);
        TreeWindow w(savePath());
        Tank &tank = *w.addTank("before");
        const auto fish = w.add<FishData>(tank, "before");
        const TreeItem item = record ? TreeItem(*fish) : TreeItem(tank);
        const QString &name = record ? fish->name : tank.name;
        w.tree.select(item);
        QVERIFY(w.save());
        w.views.clear();

        typeName(w, "after");
        QCOMPARE(name, "after");
        QCOMPARE(textOf(w.indexOf(item)), "after");
        QCOMPARE(w.document.changeCount(), 1U);
        QVERIFY(w.views.contains(record ? MainView::LivestockItem : MainView::Tank)); // the main view is shown afresh
        QVERIFY(w.edited.isEmpty()); // Return does not also open the item editor

        w.views.clear();
        w.undo.undo();
        QCOMPARE(name, "before");
        QCOMPARE(w.document.changeCount(), 2U); // undoing is a change as well
        QVERIFY(!w.views.isEmpty());
        w.undo.redo();
        QCOMPARE(name, "after");
        QCOMPARE(w.document.changeCount(), 3U);
        QCOMPARE(w.tree.currentSelectedItem(), item);
    }

    void renameWithoutEffect_data()
    {
        test::columns<QString, Qt::Key>("typed", "key");
        QTest::newRow("empty") << "" << Qt::Key_Return;
        QTest::newRow("blanks") << "   " << Qt::Key_Return;
        QTest::newRow("the same") << "before" << Qt::Key_Return;
        QTest::newRow("given up") << "after" << Qt::Key_Escape;
    }

    void renameWithoutEffect()
    {
        const auto [typed, key] = fetch<QString, Qt::Key>("typed", "key");
        TreeWindow w(savePath());
        Tank &tank = *w.addTank("before");
        QVERIFY(w.save());
        typeName(w, typed, key);
        QCOMPARE(tank.name, "before");
        QCOMPARE(w.document.changeCount(), 0U);
        QVERIFY(!w.undo.canUndo());
    }

    void renameOfADeletedItem_data() { rename_data(); }

    /// A rename that can no longer be undone hides no other change from the question before quitting.
    void renameOfADeletedItem()
    {
        QFETCH(bool, record);
        TreeWindow w(savePath());
        Tank &tank = *w.addTank("A");
        w.addTank("B");
        const auto fish = w.add<FishData>(tank, "before");
        w.tree.select(record ? TreeItem(*fish) : TreeItem(tank));
        typeName(w, "after");
        if (record)
            tank.removeFromFishListArrayAtIndex(0);
        else
            w.tree.list().removeAt(0);
        QVERIFY(w.save());
        w.documentModifiedWithChange(true);
        w.undo.undo();
        QCOMPARE(w.document.changeCount(), 1U);
        QCOMPARE(w.beeps, 1);
        QVERIFY(!w.undo.canUndo() && !w.undo.canRedo());
        QCOMPARE(fish->name, record ? "after" : "before");
    }

    void collectionsAreNotRenamed()
    {
        TreeWindow w;
        Tank &tank = *w.addTank("A");
        QVERIFY(!w.model->setData(w.indexOf(tank, ContainerKind::Fish), "Sharks", Qt::EditRole));
        QVERIFY(!w.undo.canUndo());
        w.tree.select(TreeItem(*tank.fish()));
        QTest::keyClick(w.outline, Qt::Key_F2);
        QVERIFY(!openEditor(w));
    }

    /// Replacing the tanks closes the name editor without storing its text.
    void replacedTanksCloseTheEditor()
    {
        TreeWindow w;
        w.addTank("A");
        w.tree.editName();
        QVERIFY(openEditor(w));
        QTest::keyClicks(openEditor(w), "typed");
        QVERIFY(w.read(sampleFile));
        QTRY_VERIFY(!openEditor(w));
        QVERIFY(w.tank(0).name != "typed");
        QVERIFY(!w.undo.canUndo());
    }

    /// The selection stays on its record when rows are inserted or removed above it.
    void selectionOverAReload()
    {
        TreeWindow w;
        Tank &tank = *w.addTank("A");
        const auto fish = w.add<FishData>(tank, "one");
        w.tree.select(TreeItem(*fish));
        tank.insertInFishListArray(std::make_shared<FishData>("zero", nullptr), 0);
        QCOMPARE(w.tree.currentSelectedItem().record, fish.get());
        QCOMPARE(w.indexOf(TreeItem(*fish)).row(), 1);
        tank.removeFromFishListArrayAtIndex(0);
        QCOMPARE(w.tree.currentSelectedItem().record, fish.get());
        tank.removeFromFishListArrayAtIndex(0); // selects the row that is now in its place
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*tank.plant()));
        QCOMPARE(w.views.last(), MainView::LivestockGroup);
    }

    void scrollPositionOverAReload()
    {
        TreeWindow w;
        for (int i = 0; i < 60; ++i)
            w.tree.list().append(std::make_shared<Tank>(QString::number(i)));
        w.tree.updateDisplay();
        QCoreApplication::processEvents(); // lays out the rows
        QScrollBar &bar = *w.outline->verticalScrollBar();
        bar.setValue(bar.maximum() / 2);
        const int before = bar.value();
        QVERIFY(before > 0);
        w.tree.reload();
        QCOMPARE(bar.value(), before);
    }
};

BRINEMARK_TEST(QApplication, TestTankTree)
#include "tst_tank_tree.moc"
