// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/saving/SaveProblems.h"

#include "base/TableChecks.h"
#include "base/text/Texts.h"

#include <array>
#include <cerrno>
#include <system_error>

namespace brinemark
{

namespace
{

struct ProblemText {
    SaveProblem problem;
    TextKey text;
};

constexpr std::array problemTexts{
    ProblemText{SaveProblem::NoSpace, "SaveProblemNoSpace"_key},
    ProblemText{SaveProblem::Quota, "SaveProblemQuota"_key},
    ProblemText{SaveProblem::ReadOnly, "SaveProblemReadOnly"_key},
    ProblemText{SaveProblem::NoPermission, "SaveProblemNoPermission"_key},
    ProblemText{SaveProblem::DeviceError, "SaveProblemDevice"_key},
    ProblemText{SaveProblem::PathGone, "SaveProblemPathGone"_key},
    ProblemText{SaveProblem::NameTooLong, "SaveProblemNameTooLong"_key},
    ProblemText{SaveProblem::NotAFile, "SaveProblemNotAFile"_key},
    ProblemText{SaveProblem::TooLarge, "SaveProblemTooLarge"_key},
    ProblemText{SaveProblem::NoSafeCopy, "SaveProblemNoSafeCopy"_key},
    ProblemText{SaveProblem::Other, "SaveProblemOther"_key},
};
static_assert(rowsFollow<SaveProblem>(problemTexts, &ProblemText::problem));

QString whatIsOnDisk(const WriteResult &failure)
{
    switch (failure.onDisk) {
    case WriteResult::OnDisk::Old:
        break;
    case WriteResult::OnDisk::New:
        return text("SaveLeftNewFile");
    case WriteResult::OnDisk::Damaged:
        return fillPlaceholders(text("SaveLeftDamagedFile"), {failure.keptCopy});
    }
    return text("SaveLeftOldFile");
}

} // namespace

SaveProblem problemOf(int systemError)
{
    switch (systemError) {
    case ENOSPC:
        return SaveProblem::NoSpace;
#ifdef EDQUOT
    case EDQUOT:
        return SaveProblem::Quota;
#endif
    case EROFS:
        return SaveProblem::ReadOnly;
    case EACCES:
    case EPERM:
        return SaveProblem::NoPermission;
    case EIO:
    case ENXIO:
    case ENODEV:
    case ENOTCONN:
    case ETIMEDOUT:
#ifdef ESTALE
    case ESTALE:
#endif
#ifdef EHOSTDOWN
    case EHOSTDOWN:
#endif
        return SaveProblem::DeviceError;
    case ENOENT:
    case ENOTDIR:
    case ELOOP:
        return SaveProblem::PathGone;
    case ENAMETOOLONG:
        return SaveProblem::NameTooLong;
    case EISDIR:
        return SaveProblem::NotAFile;
    case EFBIG:
        return SaveProblem::TooLarge;
    default:
        return SaveProblem::Other;
    }
}

SaveProblem problemOf(QFileDevice::FileError error)
{
    switch (error) {
    case QFileDevice::ResourceError:
        return SaveProblem::NoSpace;
    case QFileDevice::PermissionsError:
        return SaveProblem::NoPermission;
    default:
        return SaveProblem::Other;
    }
}

QString errorTextOf(FailedCall failed)
{
    return QLatin1String(failed.call) + QStringLiteral(": ") +
           QString::fromLocal8Bit(std::generic_category().message(failed.error).c_str());
}

QString saveErrorText(const WriteResult &failure)
{
    const QString reason = fillPlaceholders(text(problemTexts[std::size_t(failure.problem)].text), {failure.error});
    return reason + u' ' + whatIsOnDisk(failure);
}

} // namespace brinemark
