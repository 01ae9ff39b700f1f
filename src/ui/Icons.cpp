// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/Icons.h"

#include "base/Log.h"
#include "ui/IconEngine.h"

#include <QFile>
#include <QHash>

namespace brinemark
{

static QIcon load(const QString &name)
{
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (name.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        qCWarning(logApp) << "no icon is named" << name;
        return {};
    }
    return QIcon(new IconEngine(name, file.readAll()));
}

QIcon icon(const QString &name)
{
    // Item views ask for a row's icon at every paint. Unknown names are cached too, so that each is logged only once.
    static QHash<QString, QIcon> loaded;
    const auto found = loaded.constFind(name);
    return found != loaded.cend() ? *found : *loaded.insert(name, load(name));
}

QIcon icon(const char *name)
{
    return icon(QString::fromLatin1(name));
}

} // namespace brinemark
