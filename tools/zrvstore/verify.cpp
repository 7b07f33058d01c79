// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/verify.h"

#include "tools/terminal/failure.h"
#include "tools/zrvstore/database.h"
#include "tools/zrvstore/verify_months.h"

#include <algorithm>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

const FoundTable &named(const std::vector<FoundTable> &tables, QStringView name)
{
    return *std::ranges::find_if(tables, [&](const FoundTable &table) { return table.shape->name == name; });
}

void checkAll(const Database &database, Findings &findings)
{
    const std::vector<FoundTable> tables = checkShape(database, findings);
    for (const FoundTable &table : tables)
        checkKeys(database, table, findings);

    const FoundTable &coding = named(tables, u"ZRVtbCoding");
    const FoundTable &payees = named(tables, u"ZRVtbKarkonan");
    const CodeLists lists = checkCodeLists(database, coding, findings);
    checkFields(database, coding, lists, findings);
    checkUsers(database, named(tables, u"User_Defination"), lists, findings);
    const Payers payers = checkPayers(database, named(tables, u"ZRVtbKarfarma"), lists, findings);
    checkPayees(database, payees, lists, payers, findings);
    const SumsOfMonths sums = checkSalaries(database, named(tables, u"ZRVtbHogog"), payees, lists, payers, findings);
    checkSummaries(database, named(tables, u"ZRVtbKholList"), lists, payers, sums, findings);
}

} // namespace

void refuseDamage(Database &database, Findings &findings)
{
    bool damaged = false;
    Rows rows(database, u"PRAGMA integrity_check"_s);
    while (rows.next()) {
        const QString fault = QString::fromUtf8(rows.text(0).data(), qsizetype(rows.text(0).size()));
        // A value that breaks a rule of its column is no damage; the check of the values names it.
        if (fault == u"ok" || fault.startsWith(u"CHECK constraint failed"))
            continue;
        damaged = true;
        findings.add(finding::Damage, database.path(), fault);
    }
    if (damaged)
        throw Failure(database.path() + u" is damaged: use the newest copy that verifies"_s);
}

qint64 verifyStore(const QString &path, const Findings::Sink &sink, int mostOfAKind)
{
    Findings findings(sink, mostOfAKind);
    Database database(path);
    database.run(u"BEGIN"_s);
    refuseDamage(database, findings);
    checkAll(database, findings);
    return findings.finish();
}

} // namespace zrv::storetool
