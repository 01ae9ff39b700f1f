// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVariant>

#include <memory>

namespace brinemark
{

struct Record;

/// What undoes one edit of a cell. Keeps the record alive for as long as the step is on the undo stack.
struct UndoDictionary {
    std::shared_ptr<Record> data;
    QVariant value; ///< of the record under the identifier, to be put back
    QString identifier;
};

} // namespace brinemark
