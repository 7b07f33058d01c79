// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/shortcut.h"

#include "core/basic/run_time_error.h"

#include <QFile>
#include <QSaveFile>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

#ifndef Q_OS_WIN

/// A value of a starter file: the format gives backslashes and line ends a meaning.
QString escapedValue(QString value)
{
    return value.replace(u'\\', u"\\\\"_s).replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s).replace(u'\t', u"\\t"_s);
}

/// A path as the one word of a command line, before it becomes a value: quoted, with a backslash before each
/// letter that quotes don't protect, and doubled per cent signs, which else stand for files to be opened.
QString commandWord(const QString &path)
{
    QString word;
    for (const QChar letter : path) {
        if (QStringView(u"\"`$\\").contains(letter))
            word += u'\\';
        if (letter == u'%')
            word += u'%';
        word += letter;
    }
    return u'"' + word + u'"';
}

QString starterFile(const QString &targetPath, const QString &shortcutName, const QString &workingDirectory)
{
    QString text = u"[Desktop Entry]\nType=Application\nVersion=1.0\n"_s;
    text += u"Name=" + escapedValue(shortcutName) + u'\n';
    text += u"Exec=" + escapedValue(commandWord(targetPath)) + u'\n';
    if (!workingDirectory.isEmpty())
        text += u"Path=" + escapedValue(workingDirectory) + u'\n';
    text += u"Terminal=false\n";
    return text;
}

bool writeShortcut(const QString &file, const QString &text)
{
    // Desktops start a starter file only when it may be executed.
    constexpr auto Permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner
                                 | QFileDevice::ReadGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther
                                 | QFileDevice::ExeOther;
    const QByteArray bytes = text.toUtf8();
    QSaveFile starter(file);
    return starter.open(QIODevice::WriteOnly) && starter.write(bytes) == bytes.size()
           && starter.setPermissions(Permissions) && starter.commit();
}

#endif

} // namespace

void MakeShortcut(const QString &targetPath, const QString &specialFolder, const QString &shortcutName,
                  const QString &workingDirectory, [[maybe_unused]] int windowStyle, [[maybe_unused]] int iconNumber)
{
#ifdef Q_OS_WIN
    const QString file = specialFolder + u'/' + shortcutName + u".lnk";
    Q_UNUSED(workingDirectory);
    QFile::remove(file);
    const bool made = QFile::link(targetPath, file);
#else
    const QString file = specialFolder + u'/' + shortcutName + u".desktop";
    const bool made = writeShortcut(file, starterFile(targetPath, shortcutName, workingDirectory));
#endif
    if (!made)
        throw RunTimeError(error::PathFileAccess,
                           u"ميانبر زير ايجاد نشد. لطفا بررسي نماييد که پوشه آن وجود داشته و قابل نوشتن باشد:\n"_s
                               + file);
}

} // namespace zrv
