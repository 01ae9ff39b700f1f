// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/toolbar/MainToolBar.h"
#include "app/toolbar/ToolbarAvailableModel.h"
#include "app/toolbar/ToolbarCustomiseDialog.h"
#include "app/toolbar/ToolbarItems.h"
#include "app/toolbar/ToolbarShownModel.h"
#include "base/PreferenceKeys.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include <memory>

using namespace brinemark;

namespace
{

const QStringList &defaultSet()
{
    static const QStringList set{"newTank",   "newFish", "newPlant", "newInvert", "newCoral",
                                 "separator", "convert", "note",     "delete"};
    return set;
}

QVariant stored()
{
    return Preferences::shared().variant(preference::toolbarConfiguration.name);
}

QStringList storedIdentifiers()
{
    return stored().toMap().value("Identifiers").toStringList();
}

/// What the toolbar shows, read from its widgets rather than from its configuration.
QStringList visibleItems(const MainToolBar &bar)
{
    QStringList names;
    for (QAction *action : bar.actions()) {
        QWidget *widget = bar.widgetForAction(action);
        if (action->isSeparator())
            names << "separator";
        else if (widget->objectName() == "toolbarSpace")
            names << "space";
        else if (widget->objectName() == "toolbarFlexibleSpace")
            names << "flexibleSpace";
        else
            names << action->objectName();
    }
    return names;
}

/// A main window with the toolbar under test.
struct Window {
    QMainWindow window;
    QStringList triggered;
    MainToolBar *bar = new MainToolBar([this](const QString &identifier) { triggered << identifier; }, &window);
    ToolbarCustomiseDialog *dialog = nullptr;
    QListView *available = nullptr;
    QListView *shown = nullptr;

    Window()
    {
        window.addToolBar(bar);
        window.resize(1080, 300);
        window.show();
    }
    /// Opens the sheet; false when it does not come up.
    bool customise()
    {
        bar->customise();
        dialog = window.findChild<ToolbarCustomiseDialog *>();
        if (!dialog || !QTest::qWaitForWindowActive(dialog))
            return false;
        available = dialog->findChild<QListView *>("toolbarAvailable");
        shown = dialog->findChild<QListView *>("toolbarShown");
        return true;
    }
};

void selectRow(QListView *list, int row)
{
    list->setFocus();
    list->setCurrentIndex(list->model()->index(row, 0));
}

/// Drops row `from` of `source` before row `before` of `target` by the same calls as a view.
bool dropRow(QAbstractItemModel &source, int from, QAbstractItemModel &target, int before)
{
    const std::unique_ptr<QMimeData> data(source.mimeData({source.index(from, 0)}));
    return target.canDropMimeData(data.get(), Qt::MoveAction, before, 0, {}) &&
           target.dropMimeData(data.get(), Qt::MoveAction, before, 0, {});
}

} // namespace

class TestToolbar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Preferences::shared().remove(preference::toolbarConfiguration); }

    void showsTheDefaultSet()
    {
        Window w;
        QCOMPARE(w.bar->objectName(), "fishWindowToolbar2");
        QCOMPARE(visibleItems(*w.bar), defaultSet());
        QCOMPARE(w.bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        QVERIFY(w.bar->isVisible());
        for (QAction *action : w.bar->actions()) {
            if (action->isSeparator())
                continue;
            QWidget *button = w.bar->widgetForAction(action);
            QVERIFY2(!action->icon().isNull(), qPrintable(action->objectName()));
            QVERIFY2(button->accessibleName() == action->text() && !action->text().isEmpty(),
                     qPrintable(action->text()));
            QVERIFY2(button->toolTip() == action->toolTip() && action->toolTip() != action->text(),
                     qPrintable(action->toolTip()));
        }
        QVERIFY(!stored().isValid()); // showing the toolbar stores nothing
    }

    void pressingAnItemReportsItsIdentifier()
    {
        Window w;
        for (QAction *action : w.bar->actions()) {
            if (!action->isSeparator())
                QTest::mouseClick(w.bar->widgetForAction(action), Qt::LeftButton);
        }
        QStringList expected = defaultSet();
        expected.removeOne("separator");
        QCOMPARE(w.triggered, expected);
    }

    void validation()
    {
        Window w;
        QStringList asked;
        w.bar->validate([&asked](const QString &identifier) {
            asked << identifier;
            return identifier == "newTank" || identifier == "convert";
        });
        QCOMPARE(asked.size(), 9); // separators, spaces and the customise item are not validated
        QStringList enabled;
        for (QAction *action : w.bar->toolbarDictionary()) {
            if (action->isEnabled())
                enabled << action->objectName();
        }
        enabled.sort();
        QCOMPARE(enabled, QStringList({"convert", "customise", "newTank"}));
        QTest::mouseClick(w.bar->widgetForAction(w.bar->toolbarDictionary().value("newFish")), Qt::LeftButton);
        QVERIFY(w.triggered.isEmpty());
    }

    void storedConfiguration_data()
    {
        test::columns<QVariant, QStringList, Qt::ToolButtonStyle, bool>("value", "items", "style", "shown");
        const auto row = [](const char *name, const QVariant &value, const QStringList &items,
                            Qt::ToolButtonStyle style = Qt::ToolButtonTextUnderIcon,
                            bool shown = true) { QTest::newRow(name) << value << items << style << shown; };
        const auto identifiers = [](const QVariant &list) { return QVariantMap{{"Identifiers", list}}; };

        row("text in place of a dictionary", "newTank", defaultSet());
        row("list in place of a dictionary", QStringList{"newTank"}, defaultSet());
        row("identifiers with a number among them", identifiers(QVariantList{"newTank", 4}), defaultSet());
        row("only unknown identifiers", identifiers(QStringList{"rocket", ""}), defaultSet());
        row("an empty list is kept", identifiers(QStringList()), {});
        row("unknown skipped", identifiers(QStringList{"delete", "rocket", "newTank"}), {"delete", "newTank"});
        row("a list of anything that holds texts", identifiers(QVariantList{"print", "customise"}),
            {"print", "customise"});
        row("of two equal ones the first is kept", identifiers(QStringList{"note", "newTank", "note"}),
            {"note", "newTank"});
        const QStringList fillers{"space", "space", "separator", "note", "separator", "flexibleSpace", "flexibleSpace"};
        row("fillers repeat", identifiers(fillers), fillers);
        row("mode and visibility", QVariantMap{{"DisplayMode", "textOnly"}, {"Visible", false}}, defaultSet(),
            Qt::ToolButtonTextOnly, false);
        row("damaged mode and visibility", QVariantMap{{"DisplayMode", 3}, {"Visible", QVariantList{}}}, defaultSet());
    }

    void storedConfiguration()
    {
        const auto [value, items, style, shown] =
            test::fetch<QVariant, QStringList, Qt::ToolButtonStyle, bool>("value", "items", "style", "shown");
        Preferences::shared().setVariant(preference::toolbarConfiguration.name, value);
        Window w;
        QCOMPARE(visibleItems(*w.bar), items);
        QCOMPARE(w.bar->toolButtonStyle(), style);
        QCOMPARE(w.bar->isVisible(), shown);
        QCOMPARE(w.bar->isShown(), shown);
    }

    void aNewInstanceReadsWhatWasStored()
    {
        const QStringList chosen{"newFish", "space", "space", "separator", "flexibleSpace", "customise"};
        {
            Window w;
            w.bar->setConfiguration({chosen, ToolbarDisplay::IconOnly, true});
            w.bar->toggle();
            QVERIFY(!w.bar->isVisible());
        }
        {
            Window w;
            QCOMPARE(visibleItems(*w.bar), chosen);
            QCOMPARE(w.bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
            QVERIFY(!w.bar->isVisible());
            w.bar->toggleViewAction()->trigger(); // the toolkit's own action for showing the toolbar
            QVERIFY(w.bar->isVisible());
        }
        Window w;
        QVERIFY(w.bar->isVisible());
        w.window.hide(); // hiding the window does not count as hiding the toolbar
        QVERIFY(w.bar->isShown());
        QCOMPARE(stored().toMap().value("Visible").toBool(), true);
    }

    void contextMenuChangesTheDisplay()
    {
        Window w;
        QWidget *button = w.bar->widgetForAction(w.bar->actions().first());
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(4, 4), button->mapToGlobal(QPoint(4, 4)));
        QApplication::sendEvent(button, &event);
        auto *menu = w.bar->findChild<QMenu *>("toolbarMenu");
        QVERIFY(menu && menu->isVisible());
        QVERIFY(menu->findChild<QAction *>("iconAndText")->isChecked());
        menu->findChild<QAction *>("iconOnly")->trigger();
        QCOMPARE(w.bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
        QCOMPARE(stored().toMap().value("DisplayMode").toString(), "iconOnly");
        menu->findChild<QAction *>("customise")->trigger();
        QVERIFY(w.window.findChild<ToolbarCustomiseDialog *>());
        menu->close();
    }

    void customiseByButtons()
    {
        Window w;
        QVERIFY(w.customise());
        const auto click = [&w](const char *name) { w.dialog->findChild<QPushButton *>(name)->click(); };
        const auto enabled = [&w](const char *name) { return w.dialog->findChild<QPushButton *>(name)->isEnabled(); };

        QVERIFY(!enabled("toolbarUp") && enabled("toolbarDown") && enabled("toolbarRemove"));
        selectRow(w.shown, w.shown->model()->rowCount() - 1);
        QVERIFY(enabled("toolbarUp") && !enabled("toolbarDown"));
        selectRow(w.available, w.available->model()->rowCount() - 1);
        click("toolbarAdd");
        click("toolbarUp");
        QCOMPARE(visibleItems(*w.bar).mid(7), QStringList({"note", "print", "delete"}));
        click("toolbarDown");
        QCOMPARE(visibleItems(*w.bar).last(), "print");
        w.dialog->findChild<QComboBox *>("toolbarDisplay")->setCurrentIndex(2);
        QCOMPARE(w.bar->toolButtonStyle(), Qt::ToolButtonTextOnly);

        while (w.shown->model()->rowCount() > 0) {
            selectRow(w.shown, 0);
            click("toolbarRemove");
        }
        QVERIFY(w.bar->actions().isEmpty());
        QVERIFY(!enabled("toolbarUp") && !enabled("toolbarDown") && !enabled("toolbarRemove"));

        click("toolbarReset");
        QCOMPARE(visibleItems(*w.bar), defaultSet());
        QCOMPARE(w.bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        QCOMPARE(storedIdentifiers(), defaultSet());
        click("toolbarDone");
        QVERIFY(!w.dialog->isVisible());
    }

    void theCustomiseItemOpensOneSheet()
    {
        Window w;
        w.bar->setConfiguration({{"customise"}, ToolbarDisplay::IconAndText, true});
        QTest::mouseClick(w.bar->widgetForAction(w.bar->actions().first()), Qt::LeftButton);
        w.bar->customise();
        QCOMPARE(w.window.findChildren<ToolbarCustomiseDialog *>().size(), 1);
        QVERIFY(w.triggered.isEmpty());
    }

    void dragAndDrop()
    {
        ToolbarShownModel shown({"newTank", "separator", "note", "separator"});
        ToolbarAvailableModel available(&shown);
        QAbstractItemModelTester shownTester(&shown, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QAbstractItemModelTester availableTester(&available, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy dropped(&shown, &ToolbarShownModel::dropped);

        QVERIFY(dropRow(shown, 0, shown, 3)); // down
        QCOMPARE(shown.identifiers(), QStringList({"separator", "note", "newTank", "separator"}));
        QCOMPARE(dropped.last().first().toInt(), 2);
        QVERIFY(dropRow(shown, 3, shown, 0)); // up
        QCOMPARE(shown.identifiers(), QStringList({"separator", "separator", "note", "newTank"}));
        QVERIFY(dropRow(shown, 2, shown, 2)); // onto itself
        QVERIFY(dropRow(shown, 2, shown, 3));
        QCOMPARE(shown.identifiers(), QStringList({"separator", "separator", "note", "newTank"}));

        const int coral = int(available.identifiers().indexOf("newCoral"));
        QVERIFY(dropRow(available, coral, shown, 1));
        QVERIFY(!available.identifiers().contains("newCoral"));
        QVERIFY(dropRow(available, int(available.identifiers().indexOf("space")), shown, -1)); // below the last row
        QVERIFY(available.identifiers().contains("space"));
        QCOMPARE(shown.identifiers(), QStringList({"separator", "newCoral", "separator", "note", "newTank", "space"}));

        QVERIFY(dropRow(shown, 4, available, 2)); // removes it; the list of available items has a fixed order
        QCOMPARE(available.identifiers().first(), "newTank");
        QVERIFY(dropRow(shown, 2, available, -1));
        QCOMPARE(shown.identifiers(), QStringList({"separator", "newCoral", "note", "space"}));
        QVERIFY(!dropRow(available, 0, available, 3));

        QMimeData foreign;
        foreign.setText("newFish");
        QVERIFY(!shown.dropMimeData(&foreign, Qt::MoveAction, 0, 0, {}));
        foreign.setData("application/x-brinemark-toolbar-item", "\x00\x00\x01");
        QVERIFY(!shown.dropMimeData(&foreign, Qt::MoveAction, 0, 0, {}));
        QVERIFY(!available.dropMimeData(&foreign, Qt::MoveAction, 0, 0, {}));

        // The list may change between the start of a drag and the drop.
        const std::unique_ptr<QMimeData> stale(shown.mimeData({shown.index(2)}));
        shown.remove(0);
        QVERIFY(!available.canDropMimeData(stale.get(), Qt::MoveAction, -1, -1, {}));
        QVERIFY(shown.dropMimeData(stale.get(), Qt::MoveAction, 0, 0, {}));
        QCOMPARE(shown.identifiers(), QStringList({"note", "newCoral", "space"}));
    }
};

BRINEMARK_TEST(QApplication, TestToolbar)
#include "tst_toolbar.moc"
