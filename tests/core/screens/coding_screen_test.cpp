// SPDX-License-Identifier: GPL-3.0-or-later
// What no scenario of the code list's screen can see: what the list holds while a box is open.
#include "core/frmCoding.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

namespace zrv {
namespace {

class CodingScreen : public StoreTest {
protected:
    class Desk : public QuietPlatform {
    public:
        std::function<void()> onBox = [] {};
        Answer messageBox(int, const QString &, const QString &) override
        {
            onBox();
            return Answer::Ok;
        }
    };

    CodingScreen()
    {
        program.StoreConnectionString = connectionString();
        execute(u"DELETE FROM ZRVtbCoding"_s);
        for (const auto &row : {u"'2','a b'"_s, u"'3','b'"_s, u"'4','c'"_s})
            execute(u"INSERT INTO ZRVtbCoding (MCode,MDesc,SCode,SDesc) VALUES ('8','list',"_s + row + u")"_s);
        screen.load();
        screen.activate();
    }

    Desk desk;
    Program program{desk};
    frmCoding screen{program, u"8"_s, u"list"_s};
};

TEST_F(CodingScreen, DescriptionsLikeARefusedOneAreShownOnceItsBoxIsClosed)
{
    screen.txtSCode.setText(u"5"_s);
    screen.cmdKeyOk_Click();
    screen.txtSDesc.setText(u"b"_s);
    int rowsAtTheBox = -1;
    desk.onBox = [&] { rowsAtTheBox = screen.browse.rowCount(); };
    screen.cmdDataOk_Click();
    EXPECT_EQ(rowsAtTheBox, 3);
    EXPECT_EQ(screen.browse.rowCount(), 2);
}

} // namespace
} // namespace zrv
