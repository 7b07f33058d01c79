// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/files.h"

#include "core/basic/run_time_error.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <array>
#include <filesystem>
#include <system_error>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

struct FolderFailure {
    std::errc cause;
    qint32 number;
    QStringView description;
};

constexpr std::array<FolderFailure, 5> FolderFailures = {{
    {std::errc::no_such_file_or_directory, error::PathNotFound,
     u"پوشه زير ايجاد نشد، زيرا پوشه بالاتر از آن وجود ندارد. لطفا ابتدا پوشه بالاتر را ايجاد نماييد:"},
    {std::errc::permission_denied, error::PermissionDenied,
     u"پوشه زير ايجاد نشد، زيرا اجازه نوشتن در اين محل وجود ندارد. لطفا دسترسي پوشه بالاتر را اصلاح نماييد:"},
    {std::errc::operation_not_permitted, error::PermissionDenied,
     u"پوشه زير ايجاد نشد، زيرا اجازه نوشتن در اين محل وجود ندارد. لطفا دسترسي پوشه بالاتر را اصلاح نماييد:"},
    {std::errc::read_only_file_system, error::PermissionDenied,
     u"پوشه زير ايجاد نشد، زيرا اين ديسک فقط خواندني ميباشد. لطفا برنامه را از ديسک ديگري اجرا نماييد:"},
    {std::errc::no_space_on_device, error::DiskFull,
     u"پوشه زير ايجاد نشد، زيرا فضاي ديسک پر شده است. لطفا فضاي ديسک را آزاد نماييد:"},
}};

/// The path stands on a line of its own, where text from right to left can't scramble it.
[[noreturn]] void raiseFolderFailure(const std::error_code &cause, const QString &path)
{
    for (const FolderFailure &failure : FolderFailures) {
        if (cause == failure.cause)
            throw RunTimeError(failure.number, failure.description + u'\n' + path);
    }
    throw RunTimeError(
        error::PathFileAccess,
        u"پوشه زير ايجاد نشد. لطفا بررسي نماييد که فايلي به همين نام وجود نداشته و نام پوشه معتبر باشد:\n"_s + path);
}

bool copyContents(QFile &source, QSaveFile &target)
{
    constexpr qint64 BlockSize = qint64(1024) * 1024;
    while (!source.atEnd()) {
        const QByteArray block = source.read(BlockSize);
        if (block.isEmpty() || target.write(block) != block.size())
            return false;
    }
    return source.error() == QFileDevice::NoError;
}

} // namespace

bool FolderExists(const QString &path)
{
    return QFileInfo(path).isDir();
}

void EnsureFolder(const QString &path)
{
    if (FolderExists(path))
        return;
    std::error_code cause;
    std::filesystem::create_directory(QFileInfo(path).filesystemFilePath(), cause);
    // Another program may have made it in between; then all is well.
    if (!FolderExists(path))
        raiseFolderFailure(cause, path);
}

bool CopyFile(const QString &source, const QString &target)
{
    QFile original(source);
    QSaveFile copy(target);
    return original.open(QIODevice::ReadOnly) && copy.open(QIODevice::WriteOnly) && copyContents(original, copy)
           && copy.setPermissions(original.permissions()) && copy.commit();
}

} // namespace zrv
