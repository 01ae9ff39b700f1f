// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/ProfileTabStops.h"
#include "livestock/views/CustomThumbImageView.h"
#include "livestock/views/FishDataController.h"
#include "livestock/views/PictureWell.h"
#include "livestock/views/ProfileView.h"
#include "support/AlertDriver.h"
#include "support/DataRow.h"
#include "support/Files.h"
#include "support/RecordingShell.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "ui/Desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>

using namespace brinemark;

namespace
{

ItemImage imageOf(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    return ItemImage::fromImage(image);
}

} // namespace

class TestProfileView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shell = std::make_unique<test::RecordingShell>();
        m_tank = std::make_shared<Tank>(QStringLiteral("Reef"));
        m_shell->appendTank(m_tank);
        for (const char *name : {"Tang", "Goby"})
            m_tank->fish()->appendRecord(std::make_shared<FishData>(QString::fromLatin1(name), m_tank.get()));
        controller().view()->setParent(&m_shell->window);
        controller().view()->resize(1000, 600);
        m_shell->window.show();
        controller().displayItemData(&fish(0));
        desktop::setUrlHandler([this](const QUrl &url) {
            m_opened = url;
            return true;
        });
    }
    void cleanup()
    {
        desktop::setUrlHandler({});
        FishDataController::destroyShared();
        PictureCache::destroyShared();
        m_tank.reset();
        m_shell.reset();
        setTextLanguages({QStringLiteral("en")});
    }

    void textIsCompleteAndNeverMarkup()
    {
        fish(0).name = QStringLiteral("<b>Tang</b> & ^0");
        fish(0).diet = QString(500, u'<');
        fish(0).salt = 1.5F;
        fish(0).count = 3;
        fish(0).notes = QStringLiteral("shy\n<i>eats</i>\ttwice");
        controller().updateDisplay();
        const QString unspecified = text("Unspecified");
        const auto label = [](TextKey key) { return u'\t' + text(key).trimmed() + u'\t'; };
        const auto number = [](double value) { return QLocale().toString(value); };
        const QStringList expected{
            fish(0).name,
            unspecified,
            unspecified,
            {},
            label("FishDataTankLevel") + unspecified + label("FishDataPh") + number(fish(0).ph),
            label("FishDataSize") + unspecified + label("FishDataGh") + number(fish(0).gHardness),
            label("FishDataBreeding") + fish(0).breeding + label("FishDataKh") + number(fish(0).KH),
            label("FishDataCare") + fish(0).care + label("FishDataSalt") + number(1.5),
            label("FishDataLifeSpan") + unspecified + label("FishDataCount") + u'3',
            label("FishDataTemp") + fish(0).temp,
            label("FishDataReef") + ItemData::reefSafeStringFromCode(reefsafe::unknown),
            label("FishDataTraits") + unspecified,
            label("FishDataDiet") + fish(0).diet,
            {},
            text("FishDataNote").trimmed(),
            QStringLiteral("shy"),
            QStringLiteral("<i>eats</i>\ttwice"),
        };
        QStringList shown = profile().toPlainText().split(u'\n');
        QCOMPARE(shown.size(), expected.size());
        QVERIFY(shown.at(12).endsWith(QChar(0x2026)) && shown.at(12).size() < 400);
        QVERIFY(!shown.last().contains(u'\t'));
        profile().selectAll();
        profile().copy();
        QStringList copied = expected;
        for (QString &line : copied) {
            if (line.startsWith(u'\t'))
                line.remove(0, 1);
        }
        QCOMPARE(QApplication::clipboard()->text().split(u'\n'), copied);

        const auto toolTipOf = [this](int line) {
            const QTextBlock block = profile().document()->findBlockByNumber(line);
            return (--block.end()).fragment().charFormat().toolTip();
        };
        QCOMPARE(toolTipOf(7), number(1.5)); // of the second column, always
        QCOMPARE(toolTipOf(10), QString());  // of the first, when it is cut off
        QCOMPARE(toolTipOf(12), fish(0).diet);
        QCOMPARE(toolTipOf(15), fish(0).notes);
    }

    void linesFitEveryWidthAndLanguage()
    {
        fish(0).tankLevel = fish(0).diet = QString(300, u'm');
        for (const char *language : {"en", "de"}) {
            setTextLanguages({QString::fromLatin1(language)});
            for (const int width : {340, 620, 1400}) {
                controller().view()->resize(width, 600);
                QApplication::processEvents();
                controller().updateDisplay();
                const auto stops = controller().tabStopAttributes().tabPositions();
                const QFontMetrics metrics(controller().labelAttributes().font());
                QVERIFY(metrics.horizontalAdvance(text("FishDataTemp").trimmed()) <= stops.at(0).position);
                QVERIFY(stops.at(2).position - stops.at(1).position >
                        metrics.horizontalAdvance(text("FishDataSalt").trimmed()));
                QVERIFY2(profile().document()->idealWidth() <= profile().viewport()->width(), language);
            }
        }
    }

    void tabStops_data()
    {
        test::columns<int, int, int>("lineWidth", "firstRoom", "secondCaption");
        QTest::newRow("usual distance") << 1000 << 170 << 330;
        QTest::newRow("shared") << 320 << 84 << 244;
        QTest::newRow("no room") << 50 << 0 << 160;
    }
    void tabStops()
    {
        QFETCH(int, lineWidth);
        const ProfileTabStops stops = profileTabStops({100, 90, 40, 72}, lineWidth, 1);
        QCOMPARE(stops.firstValue, 104);
        QTEST(stops.firstRoom, "firstRoom");
        QTEST(stops.secondCaption, "secondCaption");
        QCOMPARE(profileTabStops({100, 400, 40, 72}, 1000, 1).firstRoom, 400);
    }

    void pictureIsStoredAtOnce()
    {
        const QString path = m_home.filePath(QStringLiteral("large.png"));
        const QString text = m_home.filePath(QStringLiteral("text.png"));
        QVERIFY(test::writeFile(path, imageOf({3200, 300}).encoded()) && test::writeFile(text, "no picture"));
        well().takeFile(path);
        controller().displayItemData(&fish(1)); // it was meant for the other one
        QCOMPARE(fish(0).itemImage.image().size(), QSize(1600, 150));
        QVERIFY(fish(1).itemImage.isNone());
        QCOMPARE(m_shell->changes, 1);
        QVERIFY(!m_shell->undo.canUndo());

        controller().displayItemData(&fish(0));
        const QByteArray before = fish(0).itemImage.encoded();
        QVERIFY(!child<QWidget>("fishSearchView").isVisibleTo(&well()));
        well().takeFile(text);
        well().finishReading();
        QVERIFY(test::shownAlert() && test::shownAlert()->title().contains(QStringLiteral("text.png")));
        test::shownAlert()->reject();
        controller().dropImageAction(ItemImage("no picture"));
        test::shownAlert()->reject();
        QCOMPARE(fish(0).itemImage.encoded(), before);
        QCOMPARE(m_shell->changes, 1);

        QTest::mouseClick(&child<QWidget>("profileImageView"), Qt::LeftButton);
        QVERIFY(child<QPushButton>("pictureButton").isChecked() && m_opened.isEmpty());
        child<QPushButton>("deleteImageButton").click();
        QVERIFY(fish(0).itemImage.isNone() && child<QWidget>("fishSearchView").isVisibleTo(&well()));
        QCOMPARE(m_shell->changes, 2);
        controller().deleteItemImage();
        QCOMPARE(m_shell->changes, 2);
        QTest::mouseClick(&child<QWidget>("profileImageView"), Qt::LeftButton);
        QVERIFY(m_opened.toString(QUrl::FullyEncoded).endsWith(QStringLiteral("images?q=%22Tang%22+OR+%22%22")));
    }

    void stepsEndWithTheGroup()
    {
        QVERIFY(!child<QToolButton>("previousButton").isEnabled());
        child<QToolButton>("nextButton").click();
        QCOMPARE(m_shell->selectedRecord, &fish(1));
        controller().displayItemData(&fish(1));
        QVERIFY(!child<QToolButton>("nextButton").isEnabled());
        controller().qzRadioButtonNavigateAction(1);
        QCOMPARE(m_shell->selectedRecord, &fish(1));
        controller().qzRadioButtonNavigateAction(-1);
        QCOMPARE(m_shell->selectedRecord, &fish(0));
    }

private:
    static FishDataController &controller() { return FishDataController::sharedInstance(); }
    FishData &fish(int index) { return static_cast<FishData &>(*m_tank->fish()->recordAt(index)); }
    template <class T>
    T &child(const char *name)
    {
        return *controller().view()->findChild<T *>(QLatin1String(name));
    }
    ProfileText &profile() { return child<ProfileText>("profileField"); }
    PictureWell &well() { return *controller().view()->findChild<PictureWell *>(); }

    test::TestHome m_home;
    std::unique_ptr<test::RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
    QUrl m_opened;
};

BRINEMARK_TEST(QApplication, TestProfileView)
#include "tst_profile_view.moc"
