// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/new_store.h"

#include "core/store/dialect/scope.h"
#include "core/store/dialect/sql_text.h"
#include "core/store/new_file.h"
#include "core/store/schema.h"
#include "core/store/store_error.h"
#include "core/store/store_failure.h"
#include "core/store/table_sql.h"

#include <QFile>

#include <map>
#include <sqlite3.h>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

class NewStore::Build {
public:
    Build(const QString &path, std::vector<TableShape> tables, Place place)
        : m_path(path)
        , m_place(place)
        , m_tables(std::move(tables))
    {
        m_temporary = temporaryName(path);
        if (place == Place::Free && QFile::exists(path))
            throw RunTimeError(store_error::General,
                               u"فايل بانک اطلاعاتي قبلا ايجاد شده است و جايگزين نميگردد : "_s + path);
        if (!createPrivateFile(m_temporary))
            throw RunTimeError(store_error::General,
                               u"ايجاد فايل ممکن نيست . وجود و دسترسي پوشه را بررسي نماييد : "_s + m_temporary);
        try {
            open();
        } catch (...) {
            close();
            throw;
        }
    }

    ~Build() { close(); }
    Build(const Build &) = delete;
    Build &operator=(const Build &) = delete;

    void addRow(QStringView table, std::span<const Value> values)
    {
        sqlite3_stmt *insert = insertInto(table, values.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            const QByteArray text = values[i].toText().toUtf8();
            if (values[i].isNull())
                sqlite3_bind_null(insert, int(i) + 1);
            else
                sqlite3_bind_text(insert, int(i) + 1, text.constData(), int(text.size()), SQLITE_TRANSIENT);
        }
        const int result = sqlite3_step(insert);
        sqlite3_reset(insert);
        if (result != SQLITE_DONE)
            throw storeFailure(m_database, m_path, false);
    }

    void finish()
    {
        for (const TableShape &table : m_tables) {
            for (const QString &index : createIndexSql(table))
                run(index);
        }
        run(u"COMMIT"_s);
        finalizeAll();
        sqlite3_close(m_database);
        m_database = nullptr;
        if (!(m_place == Place::Free ? giveName(m_temporary, m_path) : replaceFile(m_temporary, m_path)))
            throw RunTimeError(store_error::General,
                               u"ذخيره فايل بانک اطلاعاتي ممکن نشد . فضاي ديسک و دسترسي پوشه را بررسي نماييد : "_s
                                   + m_path);
        m_temporary.clear();
    }

private:
    void open()
    {
        if (sqlite3_open_v2(m_temporary.toUtf8().constData(), &m_database,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr)
            != SQLITE_OK)
            throw storeFailure(m_database, m_temporary, false);
        // Nobody sees the file before it is whole, so nothing in it needs to survive a failure.
        run(u"PRAGMA journal_mode=OFF"_s);
        run(u"PRAGMA synchronous=OFF"_s);
        run(u"PRAGMA locking_mode=EXCLUSIVE"_s);
        run(u"BEGIN"_s);
        for (const TableShape &table : m_tables)
            run(createTableSql(table));
    }

    void run(const QString &sql)
    {
        if (sqlite3_exec(m_database, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            throw storeFailure(m_database, m_path, false);
    }

    sqlite3_stmt *insertInto(QStringView name, std::size_t values)
    {
        for (const TableShape &table : m_tables) {
            if (name.compare(table.name, Qt::CaseInsensitive) != 0)
                continue;
            if (values != table.columns.size())
                throw RunTimeError(store_error::Syntax, u"تعداد مقادير با فيلدهاي جدول برابر نيست : "_s + name);
            sqlite3_stmt *&insert = m_inserts[table.name];
            if (!insert) {
                const QString places = u"?"_s + u",?"_s.repeated(qsizetype(values) - 1);
                const QByteArray sql =
                    QString("INSERT INTO "_L1 + dialect::sqlName(table.name) + " VALUES ("_L1 + places + u')').toUtf8();
                if (sqlite3_prepare_v2(m_database, sql.constData(), -1, &insert, nullptr) != SQLITE_OK)
                    throw storeFailure(m_database, m_path, false);
            }
            return insert;
        }
        throw RunTimeError(store_error::MissingTable, u"جدول وجود ندارد : "_s + name);
    }

    void finalizeAll()
    {
        for (const auto &[name, insert] : m_inserts)
            sqlite3_finalize(insert);
        m_inserts.clear();
    }

    void close()
    {
        finalizeAll();
        sqlite3_close(m_database);
        m_database = nullptr;
        if (!m_temporary.isEmpty())
            QFile::remove(m_temporary);
    }

    QString m_path;
    Place m_place;
    QString m_temporary; ///< empty once the file has its name
    std::vector<TableShape> m_tables;
    sqlite3 *m_database = nullptr;
    std::map<QString, sqlite3_stmt *> m_inserts;
};

NewStore::NewStore(const QString &path)
    : NewStore(path, storeSchema())
{
}

NewStore::NewStore(const QString &path, std::vector<TableShape> tables, Place place)
    : m_build(std::make_unique<Build>(path, std::move(tables), place))
{
}

NewStore::~NewStore() = default;

void NewStore::addRow(QStringView table, std::span<const Value> values)
{
    m_build->addRow(table, values);
}

void NewStore::finish()
{
    m_build->finish();
}

void createStore(const QString &path, const FirstUser &user)
{
    NewStore store(path);
    addFreshRows(store, user);
    store.finish();
}

} // namespace zrv
