// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/branch.h"

#include "core/basic/run_time_error.h"
#include "core/mdlPublic.h"
#include "core/store/connection.h"
#include "core/store/store_copy.h"

#include <QDir>
#include <QFileInfo>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString StoreName = u"DBZorvan.mdb"_s;
#ifdef Q_OS_WIN
const QString ProgramName = u"ZRVClient.exe"_s;
#else
const QString ProgramName = u"ZRVClient"_s;
#endif

/// The branch in the making, under a name that no branch has. What a run that was killed left there goes first, and
/// what this one leaves goes with it.
class Draft {
public:
    explicit Draft(QString path)
        : m_path(std::move(path))
    {
        QDir(m_path).removeRecursively();
        EnsureFolder(m_path);
    }
    ~Draft() { QDir(m_path).removeRecursively(); }
    Q_DISABLE_COPY_MOVE(Draft)

    [[nodiscard]] QString file(const QString &name) const { return m_path + u'/' + name; }
    [[nodiscard]] const QString &path() const { return m_path; }

private:
    QString m_path;
};

[[noreturn]] void refuseName(const QString &branch)
{
    throw RunTimeError(error::PathFileAccess,
                       u"پوشه زير ايجاد نشد. لطفا بررسي نماييد که فايلي به همين نام وجود نداشته باشد:\n"_s + branch);
}

void copyProgram(const QString &program, const QString &copy)
{
    if (CopyFile(program, copy))
        return;
    if (!QFileInfo::exists(program))
        throw RunTimeError(error::FileNotFound, u"فايل برنامه در مسير زير يافت نشد:\n"_s + program);
    throw RunTimeError(error::PathFileAccess,
                       u"فايل زير ايجاد نشد. لطفا فضاي ديسک و دسترسي پوشه را بررسي نماييد:\n"_s + copy);
}

/// Base data and users stay; of all else nothing is left in the file.
void EmptyBranchStore(const QString &branchFolder)
{
    const QString connection = u"Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_s + branchFolder
                               + u"\\DBZorvan.mdb;Persist Security Info=False"_s;
    for (const QStringView statement : {u" DELETE From ZRVtbKarfarma ", u" DELETE From ZRVtbKarkonan ",
                                        u" DELETE From ZRVtbHogog ", u" DELETE From ZRVtbKholList "})
        Connection(connection).execute(statement.toString());
    compactStore(branchFolder + u'/' + StoreName);
}

} // namespace

void makeBranch(Platform &platform, int number)
{
    const QString folder = platform.programFolder();
    const QString branch = folder + u'/' + QString::number(number);
    if (FolderExists(branch))
        return;
    if (QFileInfo::exists(branch) || QFileInfo(branch).isSymLink())
        refuseName(branch);
    const Draft draft(branch + u".new"_s);
    platform.yield();
    copyProgram(platform.programFile(), draft.file(ProgramName));
    platform.yield();
    copyStore(folder + u'/' + StoreName, draft.file(StoreName));
    platform.yield();
    EmptyBranchStore(draft.path());
    platform.yield();
    MakeShortcut(branch + u'/' + ProgramName, platform.desktopFolder(),
                 u"ماليات حقوق شعبه "_s + QString::number(number), QString(), 1, 0);
    platform.yield();
    if (!QDir().rename(draft.path(), branch))
        refuseName(branch);
}

} // namespace zrv
