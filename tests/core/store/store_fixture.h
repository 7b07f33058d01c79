// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/connection.h"
#include "core/store/new_store.h"
#include "core/store/recordset.h"
#include "core/store/store_error.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

inline void PrintTo(const Value &value, std::ostream *out)
{
    *out << (value.isNull() ? "NULL" : value.isText() ? "text " : "number ") << value.toText().toStdString();
}

/// A fresh store in a folder of its own.
class StoreTest : public testing::Test {
protected:
    StoreTest() { createStore(path()); }

    QString path() const { return m_folder.filePath(u"DBZorvan.mdb"_s); }

    QString connectionString() const
    {
        return "Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_L1 + m_folder.path()
               + "\\DBZorvan.mdb;Persist Security Info=False"_L1;
    }

    int execute(const QString &statement) const { return Connection(connectionString()).execute(statement); }

    /// The rows of a SELECT, their columns between bars.
    QStringList rows(const QString &select) const
    {
        QStringList result;
        for (Recordset set(Connection(connectionString()), select); !set.eof(); set.moveNext()) {
            QStringList columns;
            for (int i = 0; i < set.columnCount(); ++i)
                columns.append(set.value(i).isNull() ? u"NULL"_s : set.value(i).toText());
            result.append(columns.join(u'|'));
        }
        return result;
    }

    /// The first column of the first row.
    Value value(const QString &select) const { return Recordset(Connection(connectionString()), select).value(0); }

    /// The number of the error that a statement raises; 0 if it raises none.
    qint32 errorOf(const QString &statement) const { return error(statement).number(); }

    RunTimeError error(const QString &statement) const
    {
        try {
            if (statement.trimmed().startsWith("select"_L1, Qt::CaseInsensitive))
                (void)rows(statement);
            else
                execute(statement);
        } catch (const RunTimeError &error) {
            return error;
        }
        return {0, {}};
    }

    const QTemporaryDir m_folder;
};

} // namespace zrv
