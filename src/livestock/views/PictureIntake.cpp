// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/PictureIntake.h"

#include "livestock/PictureScaling.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace brinemark
{

PictureIntake::PictureIntake(QObject *parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(1); // answers stay in order, and only one decoded picture is in memory
}

void PictureIntake::readFile(const QString &path)
{
    start([path] { return readPictureFile(path); }, QFileInfo(path).fileName());
}

void PictureIntake::readBytes(const QByteArray &bytes)
{
    start([bytes] { return PictureFile{bytes, readPictureHeader(bytes).problem}; }, {});
}

void PictureIntake::start(std::function<PictureFile()> read, const QString &fileName)
{
    ++m_waiting;
    m_pool.start([this, read = std::move(read), fileName] {
        const PictureFile file = read();
        const bool usable = file.problem == PictureProblem::None;
        const ItemImage picture = usable ? imageForWell(file.bytes) : ItemImage();
        const PictureProblem problem = usable && picture.isNone() ? PictureProblem::Damaged : file.problem;
        QMetaObject::invokeMethod(
            this, [this, picture, problem, fileName] { answer(picture, problem, fileName); }, Qt::QueuedConnection);
    });
}

void PictureIntake::answer(const ItemImage &picture, PictureProblem problem, const QString &fileName)
{
    --m_waiting;
    if (problem == PictureProblem::None)
        Q_EMIT taken(picture);
    else
        Q_EMIT refused(problem, fileName);
}

void PictureIntake::finish()
{
    m_pool.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

} // namespace brinemark

#include "moc_PictureIntake.cpp"
