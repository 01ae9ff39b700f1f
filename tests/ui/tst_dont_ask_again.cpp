// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/PreferenceKeys.h"
#include "support/AlertDriver.h"
#include "support/TestProgram.h"
#include "ui/AlertPanelDontAskAgain.h"

#include <QCheckBox>

#include <memory>
#include <optional>

using namespace brinemark;
using namespace brinemark::test;
using Panel = AlertPanelDontAskAgain;

/// What a case asks, how the alert is answered, and the expected outcome. A missing number means that nothing is
/// stored.
struct Case {
    std::optional<int> stored = {};
    std::optional<int> ownCode = {};
    bool ignoreState = false;
    const char *press = nullptr; // a button's name, or "Escape"; null: the alert must not come up
    bool tick = false;
    int answer = -99;
    std::optional<int> storedAfter = {};
};
Q_DECLARE_METATYPE(Case)

static const QString identifier = "DontShowAgainNotTested";

static void answer(const Case &c)
{
    AlertDialog *panel = shownAlert();
    QVERIFY(panel);
    auto *box = panel->findChild<QCheckBox *>("dontShowCheckbox");
    QVERIFY(box && !box->isChecked());
    if (c.tick)
        QTest::keyClick(box, Qt::Key_Space);
    if (qstrcmp(c.press, "Escape") == 0)
        QTest::keyClick(panel, Qt::Key_Escape);
    else
        QVERIFY(pressAlertButton(c.press));
}

static void store(const std::optional<int> &value)
{
    if (value)
        Panel::setValue(*value, identifier);
    else
        Panel::clearValueForIdentifier(identifier);
}

static std::optional<int> stored()
{
    int state = -99;
    if (Panel::canShowPanelForIdentifier(identifier, &state))
        return state == -99 ? std::nullopt : std::optional(state); // nothing stored: the state is unchanged
    return state;
}

class DontAskAgainTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Panel::clearValueForIdentifier(identifier);
        m_window = std::make_unique<QWidget>();
        m_window->resize(600, 400);
        m_window->show();
    }

    void decides_data()
    {
        QTest::addColumn<Case>("c");
        const auto none = std::nullopt;
        const char *yes = "defaultButton";
        const char *no = "alternateButton";
        QTest::newRow("shown: default") << Case{none, none, false, yes, false, 1, none};
        QTest::newRow("shown: alternate") << Case{none, none, false, no, false, 0, none};
        QTest::newRow("silenced by default") << Case{none, none, false, yes, true, 1, 1};
        QTest::newRow("silenced by Escape") << Case{none, none, false, "Escape", true, 0, 0};
        QTest::newRow("stored 0") << Case{0, none, false, nullptr, false, 0, 0};
        QTest::newRow("stored -1 is stored") << Case{-1, none, false, nullptr, false, -1, -1};
        QTest::newRow("own code, not ticked") << Case{none, 5, false, yes, false, 1, none};
        QTest::newRow("own code, silenced by default") << Case{none, 5, false, yes, true, 1, 5};
        QTest::newRow("own code, stored") << Case{5, 5, false, nullptr, false, 5, 5};
        QTest::newRow("own code replaces another") << Case{1, 5, false, nullptr, false, 5, 5};
        QTest::newRow("a stored own code without one") << Case{5, none, false, nullptr, false, 5, 5};
        QTest::newRow("ignored: stays without tick") << Case{1, none, true, no, false, 0, 1};
        QTest::newRow("ignored: replaced with tick") << Case{1, none, true, no, true, 0, 0};
        QTest::newRow("ignored: own code with tick") << Case{1, 5, true, yes, true, 1, 5};
    }

    void decides()
    {
        QFETCH(Case, c);
        Panel::Question ask = question();
        ask.ignoreExistingState = c.ignoreState;
        int shown = 0;

        store(c.stored);
        if (c.press) {
            onNextAlert([&](AlertDialog &) {
                ++shown;
                answer(c);
            });
        }
        QCOMPARE(c.ownCode ? Panel::runModalPanelWithTitle(ask, true, *c.ownCode) : Panel::runModalPanelWithTitle(ask),
                 c.answer);
        QCOMPARE(shown, c.press ? 1 : 0);
        QVERIFY(stored() == c.storedAfter);

        store(c.stored);
        int calls = 0;
        int context = 0;
        const auto ended = [&](int code, void *pointer, const QString &name) {
            ++calls;
            QCOMPARE(code, c.answer);
            QCOMPARE(pointer, &context);
            QCOMPARE(name, identifier);
            QVERIFY(stored() == c.storedAfter);
        };
        if (c.ownCode)
            Panel::beginSheetForWindow(m_window.get(), ask, true, *c.ownCode, ended, &context);
        else
            Panel::beginSheetForWindow(m_window.get(), ask, ended, &context);
        QCOMPARE(calls, c.press ? 0 : 1); // called at once when no sheet is shown
        if (c.press)
            answer(c);
        QCOMPARE(calls, 1);
        QVERIFY(!shownAlert());
    }

    void keysByIdentifier()
    {
        QCOMPARE(Panel::valueForIdentifier("never heard of"), -1);
        QVERIFY(Panel::willShowPanelForIdentifier("never heard of"));

        Panel::setState(7, identifier);
        QVERIFY(!Panel::willShowPanelForIdentifier(identifier));
        QVERIFY(Panel::willShowPanelForIdentifier(identifier + "2"));

        // Another reader of the same file sees a number.
        QVERIFY(Preferences::shared().flush());
        const Preferences reread(Preferences::shared().path());
        const QVariant read = reread.variant("dont.ask.again.result.DontShowAgainNotTested");
        QVERIFY(read.typeId() == QMetaType::Int || read.typeId() == QMetaType::LongLong);
        QCOMPARE(read.toInt(), 7);
    }

    void withoutDelegate()
    {
        Panel::beginSheetForWindow(m_window.get(), question());
        answer({.press = "alternateButton", .tick = true});
        QCOMPARE(Panel::valueForIdentifier(identifier), 0);
        Panel::beginSheetForWindow(m_window.get(), question());
        QVERIFY(!shownAlert());
    }

private:
    Panel::Question question() const
    {
        return {.title = "Not tested",
                .message = "Some values were not tested.",
                .defaultButton = "Yes",
                .alternateButton = "No",
                .identifier = identifier};
    }

    std::unique_ptr<QWidget> m_window;
};

BRINEMARK_TEST(QApplication, DontAskAgainTest)
#include "tst_dont_ask_again.moc"
