// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/scratch_table.h"

#include "core/store/store_file.h"

#include <sqlite3.h>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

struct ScratchTable::Insert {
    PreparedStatement statement;
};

ScratchTable::ScratchTable(const QString &name, const QStringList &columns)
    : m_file(std::make_shared<StoreFile>())
{
    const QString ofText = u" TEXT COLLATE NOCASE"_s;
    m_file->run("CREATE TABLE "_L1 + name + u'(' + columns.join(ofText + u',') + ofText + u')');
    m_file->run(u"BEGIN"_s);
    const QString places = u",?"_s.repeated(columns.size()).sliced(1);
    m_insert =
        std::make_unique<Insert>(Insert{m_file->prepare("INSERT INTO "_L1 + name + " VALUES("_L1 + places + u')')});
}

ScratchTable::~ScratchTable() = default;

void ScratchTable::add(const QStringList &cells)
{
    sqlite3_stmt *const row = m_insert->statement.get();
    int place = 0;
    for (const QString &cell : cells) {
        const QByteArray utf8 = cell.toUtf8();
        sqlite3_bind_text(row, ++place, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
    }
    (void)m_file->step(m_insert->statement);
    sqlite3_reset(row);
}

void ScratchTable::finish()
{
    m_insert.reset();
    m_file->run(u"COMMIT"_s);
}

} // namespace zrv
