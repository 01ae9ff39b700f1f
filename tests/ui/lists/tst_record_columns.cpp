// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"
#include "ui/lists/ColumnLayoutStore.h"
#include "ui/lists/SmallList.h"

using namespace brinemark;
using namespace brinemark::test;

/// Order and widths of a list's columns: what is stored, when, and what a stored layout makes.
class TestRecordColumns : public QObject, protected SmallListOnScreen
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void storesWhatTheUserChanges()
    {
        QVERIFY(stored().isEmpty());
        m_shell->window.resize(900, 500);
        m_list->view()->resize(900, 500); // the last column grows with the window
        m_list->updateColumnInfo();
        QVERIFY(stored().isEmpty());
        header()->resizeSection(Activity, 333);
        header()->moveSection(Activity, 0);
        QVERIFY(stored().isEmpty()); // one signal later
        QTRY_COMPARE(order(), "activity complete date nextDate autoReschedule");
        QCOMPARE(stored().first().toMap().value("width").toInt(), 333);
        QCOMPARE(m_shell->changes, 0);

        header()->resizeSection(Due, 222);
        m_list->updateColumnInfo(); // before a save: at once
        QCOMPARE(stored().at(2).toMap().value("width").toInt(), 222);
        header()->moveSection(0, 1);
        show(); // the next start
        QCOMPARE(order(), "complete activity date nextDate autoReschedule");
        QCOMPARE(header()->sectionSize(1), 333);
        header()->resizeSection(1, 300);
        showAnotherTank(2); // one layout for all tanks
        QCOMPARE(header()->sectionSize(1), 300);
    }

    void aStoredLayout_data()
    {
        test::columns<QVariantList, QString>("stored", "shown");
        const auto column = [](const char *identifier, QVariant width = 0) {
            return QVariant(QVariantMap{{"identifier", QLatin1String(identifier)}, {"width", std::move(width)}});
        };
        const QString whole = QStringLiteral("complete date activity nextDate autoReschedule");
        row("none", QVariantList(), whole);
        row("another order", QVariantList{column("nextDate"), column("date"), column("complete"), column("activity")},
            QString("nextDate date complete activity autoReschedule"));
        row("a column missing", QVariantList{column("activity"), column("date")},
            QString("activity date complete nextDate autoReschedule"));
        row("unknown and twice", QVariantList{column("date"), column("colour"), column("date")},
            QString("date complete activity nextDate autoReschedule"));
        row("no layout at all", QVariantList{5, QString("date"), QVariantList()}, whole);
        row("widths that cannot be",
            QVariantList{column("complete", -7), column("date", 1e300), column("activity", qQNaN())}, whole);
    }
    void aStoredLayout()
    {
        QFETCH(QVariantList, stored);
        Preferences::shared().setVariant(QStringLiteral("TableColumns SmallList"), stored);
        show();
        QStringList shown;
        for (int i = 0; i < table()->model()->columnCount(); ++i) {
            shown << identifierOf(i);
            QVERIFY(header()->sectionSize(i) > 20 && header()->sectionSize(i) <= 1000);
        }
        QTEST(shown.join(' '), "shown");
    }

    void noColumnIsTooNarrow()
    {
        for (int i = 0; i < 4; ++i) {
            header()->resizeSection(i, 1);
            const int headerText =
                header()->fontMetrics().horizontalAdvance(table()->model()->headerData(i, Qt::Horizontal).toString());
            QVERIFY(header()->sectionSize(i) >= headerText + 17);
        }
        QVERIFY(header()->sectionSize(Due) > table()->fontMetrics().horizontalAdvance(cell(0, Due).data().toString()));
        QVERIFY(header()->sectionSize(Activity) < 280); // the opening width is not the smallest one
    }

private:
    [[nodiscard]] QHeaderView *header() const { return table()->horizontalHeader(); }
    [[nodiscard]] static QVariantList stored()
    {
        return Preferences::shared().variant(QStringLiteral("TableColumns SmallList")).toList();
    }
    [[nodiscard]] static QString order()
    {
        const auto identifier = [](const QVariant &column) { return column.toMap().value("identifier").toString(); };
        return listOf(stored(), identifier).join(' ');
    }
    /// Of a column of the model, found by its header text.
    [[nodiscard]] QString identifierOf(int column) const
    {
        const QString title = table()->model()->headerData(column, Qt::Horizontal).toString();
        for (const RecordColumn &each : smallListColumns) {
            if (text(each.header) == title)
                return each.identifier.toString();
        }
        return {};
    }
};

BRINEMARK_TEST(QApplication, TestRecordColumns)
#include "tst_record_columns.moc"
