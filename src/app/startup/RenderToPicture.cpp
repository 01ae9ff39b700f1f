// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/startup/RenderToPicture.h"

#include "app/ShoalwatchController.h"
#include "app/window/MainWindow.h"
#include "base/saving/SafeFile.h"
#include "ui/pictures/PictureCache.h"

#include <QApplication>
#include <QBuffer>
#include <QPixmap>

namespace brinemark
{

bool renderToPicture(const QString &path)
{
    MainWindow &window = ShoalwatchController::sharedInstance().window();
    window.show();
    QApplication::processEvents(); // completes the layout
    PictureCache::sharedInstance().finishRequests();
    QBuffer picture;
    return picture.open(QIODevice::WriteOnly) && window.grab().save(&picture, "PNG") &&
           writeFileSafely(path, picture.data()).ok;
}

} // namespace brinemark
