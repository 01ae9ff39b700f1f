// SPDX-License-Identifier: GPL-3.0-or-later

#include "online/views/QZUpdateController.h"

#include "base/Clock.h"
#include "base/Log.h"
#include "base/PreferenceKeys.h"
#include "base/Product.h"
#include "base/text/DateText.h"
#include "base/text/Texts.h"
#include "online/UpdateSchedule.h"
#include "ui/CaptionForm.h"
#include "ui/Shell.h"
#include "ui/Spacing.h"
#include "ui/WindowPlacement.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>

namespace brinemark
{

namespace
{

constexpr int scheduleTextWidth = 320; ///< pixels

QString lastCheckText()
{
    const std::optional<QDateTime> checked = Preferences::shared().value(preference::updateLastChecked);
    if (!checked || *checked == distantPast())
        return text("NeverChecked", TextTable::Update);
    return calendarText(checked->toLocalTime(), QStringLiteral("%a, %b %1d, %Y, %1I:%M %p"));
}

} // namespace

QZUpdateController::QZUpdateController() = default;

QZUpdateController::~QZUpdateController() = default;

void QZUpdateController::makeWindow()
{
    const QString product = QLatin1String(product::name);
    m_scheduleWindow = new QDialog(Shell::shared().mainWindow());
    m_scheduleWindow->setObjectName(QStringLiteral("updateWindow"));
    m_scheduleWindow->setWindowTitle(formatText(text("UpdateWindowTitle", TextTable::Update), {product}));
    auto *label = new QLabel(formatText(text("UpdateWindowLabel", TextTable::Update), {product}));
    label->setWordWrap(true);
    label->setFixedWidth(scheduleTextWidth);
    m_autoUpdateCheck = new QCheckBox(text("UpdateAutoLabel", TextTable::Update));
    m_autoUpdateCheck->setObjectName(QStringLiteral("autoUpdateCheck"));
    m_checkPopupButton = new QComboBox;
    m_checkPopupButton->setObjectName(QStringLiteral("checkPopupButton"));
    m_checkPopupButton->setAccessibleName(m_autoUpdateCheck->text());
    m_checkPopupButton->addItems(textItems("UpdateFrequencyMenu"_key, TextTable::Update));
    m_lastCheckField = makeValue(QStringLiteral("lastCheckField"));

    auto *form = new QGridLayout;
    form->setHorizontalSpacing(spacing::group);
    form->setVerticalSpacing(spacing::group);
    form->addWidget(m_autoUpdateCheck, 0, 0);
    form->addWidget(m_checkPopupButton, 0, 1);
    form->addWidget(makeCaption(text("LastCheck", TextTable::Update)), 1, 0);
    form->addWidget(m_lastCheckField, 1, 1);
    form->setColumnStretch(1, 1);
    auto *column = new QVBoxLayout(m_scheduleWindow);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::content);
    column->addWidget(label);
    column->addLayout(form);
    column->setSizeConstraint(QLayout::SetFixedSize);

    connect(m_autoUpdateCheck, &QCheckBox::clicked, this,
            [](bool automatic) { Preferences::shared().set(preference::updateAuto, automatic); });
    connect(m_checkPopupButton, &QComboBox::activated, this,
            [](int index) { Preferences::shared().set(preference::updateFrequency, updateFrequency(index)); });
}

void QZUpdateController::initDefaults()
{
    if (m_scheduleWindow) // a window made later is centred when it is first shown
        centreOnScreen(*m_scheduleWindow);
    Preferences &preferences = Preferences::shared();
    preferences.set(preference::updateLastChecked, distantPast());
    preferences.set(preference::updateFrequency, defaultUpdateFrequency);
    preferences.set(preference::updateAuto, true);
    preferences.flush();
}

void QZUpdateController::launchUpdateCheck()
{
    const Preferences &preferences = Preferences::shared();
    if (!preferences.value(preference::updateAuto, false))
        return;
    const std::optional<QDateTime> lastChecked = preferences.value(preference::updateLastChecked);
    if (!lastChecked) {
        initDefaults();
        return;
    }
    if (isUpdateCheckDue(*lastChecked, preferences.value(preference::updateFrequency, 0), clock::now()))
        checkForUpdateWithInteraction(false);
}

void QZUpdateController::checkForUpdateWithInteraction(bool)
{
    const QString line = QStringLiteral("%@ - Checking for an update online...");
    qCInfo(logOnline).noquote() << formatText(line, {QLatin1String(product::name)});
}

void QZUpdateController::showScheduleWindow()
{
    if (!m_scheduleWindow) {
        makeWindow();
        m_scheduleWindow->adjustSize();
        centreOnScreen(*m_scheduleWindow);
    }
    const Preferences &preferences = Preferences::shared();
    m_autoUpdateCheck->setChecked(preferences.value(preference::updateAuto, false));
    m_checkPopupButton->setCurrentIndex(updateFrequencyIndex(preferences.value(preference::updateFrequency, 0)));
    m_lastCheckField->setText(lastCheckText());
    showInFront(*m_scheduleWindow);
}

} // namespace brinemark

#include "moc_QZUpdateController.cpp"
