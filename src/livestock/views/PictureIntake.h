// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemImage.h"
#include "model/pictures/PictureReader.h"

#include <QObject>
#include <QThreadPool>

#include <functional>

namespace brinemark
{

/// Reads, checks and shrinks pictures in the background before a record takes them, since a large one takes a second.
class PictureIntake : public QObject
{
    Q_OBJECT

public:
    explicit PictureIntake(QObject *parent = nullptr);

    // Each answers later with one of the signals, in the order of the calls.
    void readFile(const QString &path);
    void readBytes(const QByteArray &bytes);

    [[nodiscard]] bool isReading() const { return m_waiting > 0; }
    void finish(); ///< waits for all answers

Q_SIGNALS:
    void taken(const brinemark::ItemImage &picture);
    void refused(brinemark::PictureProblem problem, const QString &fileName); ///< no name for bytes

private:
    void start(std::function<PictureFile()> read, const QString &fileName);
    void answer(const ItemImage &picture, PictureProblem problem, const QString &fileName);

    int m_waiting = 0;
    QThreadPool m_pool;
};

} // namespace brinemark
