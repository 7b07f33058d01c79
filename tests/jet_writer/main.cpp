// SPDX-License-Identifier: GPL-3.0-or-later
// zrvjet: puts a store of an older version of the program into a folder, for the scenarios.

#include "tests/jet_writer/old_stores.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using namespace zrv::jettest;

namespace {

/// Changes to a sound file, by the word that asks for them.
bool change(const QString &word, std::vector<Table> &tables, Manner &manner)
{
    if (word == u"password")
        manner.password = u"1234"_s;
    else if (word == u"old-code-page")
        cellOf(tableOf(tables, u"ZRVtbKarkonan"), 0, u"Family") = u"ãÍãÏ"_s;
    else if (word == u"odd-letter")
        cellOf(tableOf(tables, u"ZRVtbKarkonan"), 0, u"Family") = u"㼰ب"_s;
    else if (word == u"user-code") {
        tableOf(tables, u"ZRVtbCoding").rows.push_back({u"10"_s, u"رسته شغلي"_s, u"10"_s, u"راننده"_s});
        for (const int payee : {2, 5})
            cellOf(tableOf(tables, u"ZRVtbKarkonan"), payee, u"Rasteh") = u"10"_s;
    } else if (word == u"missing-table")
        std::erase_if(tables, [](const Table &table) { return table.shape.name == u"ZRVtbHogog"; });
    else
        return word == u"cut-off" || word == u"in-use";
    return true;
}

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QFile::decodeName(argv[i]));
    // An age, and how many payees if not twelve.
    const QStringList age = words.value(1).split(u'=');
    const int payees = age.size() == 2 ? age[1].toInt() : 12;
    const QStringList ages = {u"old"_s, u"upgraded"_s, u"current"_s, u"oldest"_s};
    bool isUsable = payees > 0 && ages.contains(age[0]);
    if (isUsable) {
        std::vector<Table> tables =
            age[0] == u"oldest" ? oldestStore(payees) : oldStore(Age(ages.indexOf(age[0])), payees);
        Manner manner{.isCompressed = true, .movedEach = 5, .deletedEach = 4};
        for (const QString &word : words.mid(2))
            isUsable = isUsable && change(word, tables, manner);
        QByteArray file = jetFile(tables, manner);
        if (words.contains(u"cut-off"_s))
            file.truncate(file.size() / 2);
        const QDir folder(words[0]);
        isUsable = isUsable && write(folder.filePath(u"DBZorvan.mdb"_s), file)
                   && (!words.contains(u"in-use"_s) || write(folder.filePath(u"DBZorvan.ldb"_s), {}));
    }
    if (!isUsable)
        (void)std::fputs(
            "usage: zrvjet DIR oldest|old|upgraded|current[=PAYEES] [password] [old-code-page] [odd-letter]"
            " [user-code] [missing-table] [cut-off] [in-use]\n",
            stderr);
    return isUsable ? 0 : 2;
}
