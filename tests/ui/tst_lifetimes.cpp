// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QApplication>
#include <QWidget>

using namespace brinemark;

namespace
{

QStringList &ended()
{
    static QStringList names;
    return names;
}

class Needed : public Shared<Needed>
{
public:
    ~Needed() { ended() << "needed"; }
};

/// Makes the instance that it needs in its own constructor.
class Needing : public Shared<Needing>
{
public:
    Needing() { Needed::sharedInstance(); }
    ~Needing() { ended() << (Needed::hasSharedInstance() ? "needing" : "needing, too late"); }
};

class Last : public Shared<Last>
{
public:
    ~Last() { ended() << "last"; }
};

} // namespace

class TestLifetimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sharedInstancesEndInReverseOrder()
    {
        Last::sharedInstance();
        Needing::sharedInstance();
        Last::destroyShared(); // made again below, it is the newest
        Last::sharedInstance();
        QCOMPARE(std::exchange(ended(), {}), QStringList{"last"});
        SharedRegistry::endAll();
        QCOMPARE(ended(), QStringList({"last", "needing", "needed"}));
        QVERIFY(!Last::hasSharedInstance() && !Needing::hasSharedInstance() && !Needed::hasSharedInstance());
        SharedRegistry::endAll(); // nothing is ended twice
        QCOMPARE(ended().size(), 3);
    }

    void ownedWidget()
    {
        QPointer<QWidget> first = new QWidget;
        const QPointer<QWidget> second = new QWidget;
        {
            OwnedWidget<QWidget> owned(first);
            owned = second.data();
            QVERIFY(!first);
            QCOMPARE(owned.get(), second.data());
        }
        QVERIFY(!second);

        auto parent = std::make_unique<QWidget>();
        OwnedWidget<QWidget> child(new QWidget(parent.get()));
        parent.reset();
        QVERIFY(!child);

        child = new QWidget;
        first = child.release();
        QVERIFY(first && !child);
        delete first;
    }
};

BRINEMARK_TEST(QApplication, TestLifetimes)
#include "tst_lifetimes.moc"
