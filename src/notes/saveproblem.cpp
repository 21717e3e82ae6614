// SPDX-License-Identifier: MIT
#include "notes/saveproblem.h"

#include "notes/storetrouble.h"

#include <QCoreApplication>

namespace vesk {

namespace {

struct SaveProblem
{
    Q_DECLARE_TR_FUNCTIONS(vesk::SaveProblem)
};

} // namespace

QString describeSaveProblem(const StoreTrouble &trouble, qsizetype refused)
{
    using Kind = StoreTrouble::Kind;
    switch (trouble.kind) {
    case Kind::DiskFull:
        return SaveProblem::tr("Not saved: the disk is full. Vesk keeps trying.");
    case Kind::QuotaUsedUp:
        return SaveProblem::tr("Not saved: your disk quota is used up. Vesk keeps trying.");
    case Kind::ReadOnly:
        return SaveProblem::tr("Not saved: the notes file is read-only. Vesk keeps trying.");
    case Kind::NotAllowed:
        return SaveProblem::tr(
            "Not saved: Vesk has no permission to write the notes file. Vesk keeps trying.");
    case Kind::InUse:
        return SaveProblem::tr("Not saved: another program is using the notes file. Vesk keeps trying.");
    case Kind::Lost:
        return SaveProblem::tr("Not saved: the notes file is gone, and a new one cannot be made (%1). Vesk "
                               "keeps trying.")
            .arg(trouble.detail);
    case Kind::Unreachable:
        return SaveProblem::tr(
            "Not saved: the folder of the notes file cannot be reached. Vesk keeps trying.");
    case Kind::Damaged:
    case Kind::NotADatabase:
        return SaveProblem::tr("Not saved: the notes file is damaged. Copy your latest notes elsewhere.");
    case Kind::RecordRefused:
        return SaveProblem::tr("%Ln notes or prompts cannot be saved (%1). All others are saved.", nullptr,
                               static_cast<int>(refused))
            .arg(trouble.detail);
    case Kind::Other:
        break;
    }
    return SaveProblem::tr("Not saved: the notes file cannot be written (%1). Vesk keeps trying.")
        .arg(trouble.detail);
}

} // namespace vesk
