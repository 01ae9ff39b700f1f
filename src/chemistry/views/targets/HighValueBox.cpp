// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/targets/HighValueBox.h"

#include "base/text/NumberText.h"
#include "chemistry/HighValue.h"
#include "chemistry/TargetInput.h"
#include "ui/Icons.h"
#include "ui/Spacing.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr int markSide = 32;   ///< pixels
constexpr int lineLength = 48; ///< characters of average width
constexpr int significant = 7; ///< digits

QString titleText(const QString &value)
{
    return fillPlaceholders(text("HighValueWarning"), {value});
}

QLabel *makeLine(const QString &objectName)
{
    auto *line = new QLabel;
    line->setObjectName(objectName);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    line->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return line;
}

} // namespace

HighValueBox::HighValueBox(QWidget *parent)
    : QFrame(parent)
    , m_warningImageView(new QLabel)
    , m_title(makeLine(QStringLiteral("warningTitle")))
    , m_reason(makeLine(QStringLiteral("warningReason")))
{
    setObjectName(QStringLiteral("warningBox"));
    setFrameShape(QFrame::StyledPanel);
    m_warningImageView->setObjectName(QStringLiteral("warningImageView"));
    m_warningImageView->setAlignment(Qt::AlignTop);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);

    auto *lines = new QVBoxLayout;
    lines->setSpacing(spacing::tight);
    lines->addWidget(m_title);
    lines->addWidget(m_reason);
    lines->addStretch();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(spacing::aroundGroup);
    row->setSpacing(spacing::group);
    row->addWidget(m_warningImageView);
    row->addLayout(lines, 1);
    applyLook();
}

void HighValueBox::setAdvice(Parameter parameter, bool freshwater, double value)
{
    const HighValueAdvice *advice = highValueAdviceOf(parameter);
    if (!advice)
        return;
    const double threshold = *highValueThreshold(parameter, freshwater);
    m_title->setText(titleText(shownNumber(value, significant)));
    m_reason->setText(fillPlaceholders(text(advice->of(freshwater).reasonKey), {shownNumber(threshold, significant)}));
    setAccessibleName(title());
    setAccessibleDescription(reason());
}

QString HighValueBox::title() const
{
    return m_title->text();
}

QString HighValueBox::reason() const
{
    return m_reason->text();
}

void HighValueBox::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        applyLook();
}

void HighValueBox::applyLook()
{
    m_warningImageView->setPixmap(icon("AlertCritical").pixmap(QSize(markSide, markSide), devicePixelRatioF()));
    QFont bold = font();
    bold.setBold(true);
    m_title->setFont(bold);
    reserveRoom();
}

/// Reserves room for the longest advice, so that the sheet keeps its size when the advice appears or disappears.
void HighValueBox::reserveRoom()
{
    const int width = fontMetrics().averageCharWidth() * lineLength;
    const auto heightOf = [width](const QLabel *label, const QString &text) {
        const QRect room(0, 0, width, 10'000);
        return QFontMetrics(label->font()).boundingRect(room, Qt::TextWordWrap, text).height();
    };
    int height = markSide;
    for (const HighValueAdvice &advice : highValueAdvices()) {
        const QString longest = shownNumber(targetInputOf(advice.parameter).preferred.maximum + 0.99, significant);
        for (const TextKey reason : {advice.fresh.reasonKey, advice.marine.reasonKey})
            height = std::max(height, heightOf(m_title, titleText(longest)) + 4 +
                                          heightOf(m_reason, fillPlaceholders(text(reason), {longest})));
    }
    m_title->setMinimumWidth(width);
    m_reason->setMinimumWidth(width);
    setFixedHeight(height + 16 + 2 * frameWidth());
}

} // namespace brinemark

#include "moc_HighValueBox.cpp"
