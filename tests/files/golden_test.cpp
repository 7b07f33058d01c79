// SPDX-License-Identifier: GPL-3.0-or-later

// Whole files compared byte for byte with approved ones. A case is a folder of tests/files/golden: store.sql, whose
// statements fill a fresh store, a line each, and the two files that a run must then write; their names give year and
// month. A file that differs is left beside the approved one with ".received" behind its name; approving it is
// moving it there, after a look at every field.

#include "core/store/recordset.h"
#include "tests/files/month_fixture.h"

#include <QDir>

namespace zrv {
namespace {

const QString GoldenFolder = QStringLiteral(ZRV_SOURCE_DIR "/tests/files/golden");

std::vector<std::string> cases()
{
    std::vector<std::string> names;
    for (const QString &name : QDir(GoldenFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        names.push_back(name.toStdString());
    return names;
}

class GoldenFiles : public MonthTest, public testing::WithParamInterface<std::string> {
protected:
    void fillStore()
    {
        createStore(path(u"DBZorvan.mdb"));
        Connection store(u"Data Source = "_s + path(u"DBZorvan.mdb"));
        const QStringList statements =
            QString::fromUtf8(bytes(m_case + u"/store.sql"_s)).split(u'\n', Qt::SkipEmptyParts);
        ASSERT_FALSE(statements.isEmpty());
        for (const QString &statement : statements)
            ASSERT_EQ(store.execute(statement), 1) << statement.toStdString();
    }

    void compare(const QString &written, const QString &approved)
    {
        const QByteArray received = bytes(written);
        if (received == bytes(approved)) {
            QFile::remove(approved + u".received"_s);
            return;
        }
        write(approved + u".received"_s, received);
        ADD_FAILURE() << approved.toStdString() << " differs from what was written; see the .received file beside it";
    }

    const QString m_case = GoldenFolder + u'/' + QString::fromStdString(GetParam());
};

TEST_P(GoldenFiles, AreWrittenByteForByte)
{
    fillStore();
    const QStringList approved = QDir(m_case).entryList({u"W?13????.TXT"_s}, QDir::Files, QDir::Name);
    ASSERT_EQ(approved.size(), 2);
    const QString year = approved[0].mid(2, 4);
    const QString month = approved[0].mid(6, 2);

    openScreen();
    program.PayerTFN =
        Recordset(Connection(program.StoreConnectionString), u"SELECT TFN FROM ZRVtbKarfarma"_s).value(0).toText();
    screen->userFocus(screen->txtTaxYear);
    screen->txtTaxYear.setText(year);
    chooseMonth(month);
    ASSERT_TRUE(screen->userClick(screen->cmdCreatTextFiles));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, u" اطلاع  "_s) << platform.boxes[0].text.toStdString();
    for (const QString &name : approved)
        compare(folder.path() + u"/ERSAL/"_s + year + month + u'/' + name, m_case + u'/' + name);
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenFiles, testing::ValuesIn(cases()),
                         [](const auto &folderName) { return folderName.param; });

} // namespace
} // namespace zrv
