// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/PictureRefusal.h"

#include "base/text/Texts.h"
#include "model/pictures/PictureReader.h"
#include "ui/Alerts.h"

#include <QFileDialog>

namespace brinemark
{

namespace
{

TextKey refusalReason(PictureProblem problem)
{
    switch (problem) {
    case PictureProblem::NotReadable:
        return "PictureNotReadable"_key;
    case PictureProblem::TooLarge:
        return "PictureTooLarge"_key;
    case PictureProblem::Damaged:
        return "PictureDamaged"_key;
    case PictureProblem::NotAPicture:
    case PictureProblem::None:
        break;
    }
    return "PictureNotAPicture"_key;
}

} // namespace

void beginPictureRefusal(QWidget *window, PictureProblem problem, const QString &fileName)
{
    beep();
    const QString title = fileName.isEmpty() ? text("DroppedPictureRefusedTitle")
                                             : fillPlaceholders(text("PictureRefusedTitle"), {fileName});
    beginAlertSheet(window, {.title = title, .message = text(refusalReason(problem))});
}

void choosePicture(QWidget *window, std::function<void(const QString &path)> chosen)
{
    const QString patterns = pictureFilePatterns().join(QLatin1Char(' '));
    auto *panel = new QFileDialog(window, {}, {}, text("PictureFilter") + QStringLiteral(" (%1)").arg(patterns));
    panel->setObjectName(QStringLiteral("imagePanel"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    QObject::connect(panel, &QFileDialog::fileSelected, panel, std::move(chosen));
    panel->open();
}

} // namespace brinemark
