// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace brinemark
{

enum class PictureProblem;

/// Beeps and shows a sheet of `window` that says why a picture was refused. A picture without a file's name is called
/// "dropped picture".
void beginPictureRefusal(QWidget *window, PictureProblem problem, const QString &fileName);

/// Opens a panel ("imagePanel") for one picture file; `chosen` receives its path.
void choosePicture(QWidget *window, std::function<void(const QString &path)> chosen);

} // namespace brinemark
