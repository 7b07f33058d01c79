// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/qt/opened_screen.h"

#include "app/catalogue.h"
#include "core/store/connection.h"
#include "core/store/new_store.h"

namespace zrv::test {

namespace {

constexpr const char16_t *ALittleOfEverything[] = {
    u"INSERT INTO ZRVtbKarfarma (TFN,CodeShobe,ShobeName) VALUES ('1','1','دفتر مرکزي')",
    u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family,ShakhsMoafCode) VALUES ('1','1234567891','علي','احمدي','1')",
    u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family,ShakhsMoafCode) VALUES ('1','1234567892','رضا','كريمي','1')",
    u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NTotalDaramad,GTotalDaramad,PJariHogog,"
    "FinalDaramadeMashmol,FinalTax) VALUES ('1','1234567891','1389','01','5','0','0','3','0')",
    u"INSERT INTO ZRVtbKholList (TFN,KholListType,TaxYear,TaxMonth) VALUES ('1','1','1389','01')",
};

} // namespace

std::vector<ScreenCase> allScreens()
{
    Catalogue catalogue;
    fillCatalogue(catalogue);
    std::vector<ScreenCase> screens;
    for (const QString &name : catalogue.names())
        screens.push_back({name.toStdString()});
    return screens;
}

std::vector<ScreenCase> allScreensAndStages()
{
    std::vector<ScreenCase> all = allScreens();
    for (const Stage &stage : fieldStages())
        all.push_back({stage.name, &stage});
    return all;
}

QStringList GuidePlatform::guideFolders() const
{
    return {QStringLiteral(ZRV_GUIDE)};
}

OpenedScreen::OpenedScreen(const ScreenCase &opened)
    : screen(make(opened))
    , window(*screen, platform, nullptr)
{
    window.open();
    window.syncFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

std::unique_ptr<Screen> OpenedScreen::make(const ScreenCase &opened)
{
    createStore(m_folder.filePath(u"DBZorvan.mdb"_s));
    m_program.StoreConnectionString = u"Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_s + m_folder.path()
                                      + u"\\DBZorvan.mdb;Persist Security Info=False"_s;
    fillCatalogue(m_program.catalogue);
    const auto run = [this](const char16_t *statement) {
        Connection(m_program.StoreConnectionString).execute(QString::fromUtf16(statement));
    };
    if (opened.stage) {
        std::ranges::for_each(opened.stage->statements, run);
        return openAt(*opened.stage, m_program);
    }
    std::ranges::for_each(ALittleOfEverything, run);
    m_program.PayerTFN = u"1"_s;
    m_program.PayerCodeShobe = u"1"_s;
    m_program.ProgramVersion = u"1"_s; // the settings' own answer: no first run
    std::unique_ptr<Screen> made = m_program.catalogue.make(QString::fromStdString(opened.name), m_program);
    made->load();
    made->activate();
    return made;
}

std::vector<Control *> OpenedScreen::stops() const
{
    std::vector<Control *> found;
    for (Control *control : screen->controls())
        if (control->isTabStop() && control->isReachable())
            found.push_back(control);
    return found;
}

} // namespace zrv::test
