// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/connection.h"

#include "core/store/column_change.h"
#include "core/store/dialect/tokens.h"
#include "core/store/dialect/translate.h"
#include "core/store/store_error.h"
#include "core/store/store_file.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

int run([[maybe_unused]] StoreFile &file, [[maybe_unused]] const dialect::Select &select)
{
    dialect::refuse(u"SELECT");
}

int run(StoreFile &file, const dialect::Insert &insert)
{
    const QString sql = translate(insert, file);
    if (insert.query)
        file.expectLargeChange();
    return file.run(sql);
}

int run(StoreFile &file, const dialect::Update &update)
{
    return file.run(translate(update, file));
}

int run(StoreFile &file, const dialect::Delete &statement)
{
    return file.run(translate(statement, file));
}

template <typename Change>
int run(StoreFile &file, const Change &statement)
{
    change(file, statement);
    return 0;
}

} // namespace

QString storeFilePath(const QString &connectionString)
{
    // A folder's name may hold a semicolon: the path ends only where the next setting begins.
    static const QRegularExpression source(
        u"(?:^|;)\\s*Data Source\\s*=\\s*(.*?)\\s*(?:;\\s*[A-Za-z][A-Za-z :]*=|;?\\s*$)"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    QString named = source.match(connectionString).captured(1);
    if (named.isEmpty())
        throw RunTimeError(store_error::General, u"نام فايل بانک اطلاعاتي مشخص نشده است"_s);
    if (QDir::separator() == u'\\')
        return named;
    // A folder's own name may hold a backslash here, so only the last one is sure to be a separator.
    QString path = named;
    const qsizetype last = path.lastIndexOf(u'\\');
    if (last > path.lastIndexOf(u'/'))
        path[last] = u'/';
    return QFileInfo::exists(path) ? path : QString(named).replace(u'\\', u'/');
}

QString quoted(QStringView value)
{
    if (value.contains(u'\'') || value.contains(QChar()))
        dialect::refuse(value);
    return u'\'' + value.toString() + u'\'';
}

Connection::Connection(const QString &connectionString)
    : m_file(std::make_shared<StoreFile>(storeFilePath(connectionString)))
{
}

Connection::~Connection() = default;
Connection::Connection(Connection &&) noexcept = default;
Connection &Connection::operator=(Connection &&) noexcept = default;

int Connection::execute(const QString &statement)
{
    return std::visit([&](const auto &parsed) { return run(*m_file, parsed); }, dialect::parse(statement));
}

} // namespace zrv
