// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"
#include "core/forms/report_box.h"
#include "files/check_report.h"
#include "files/file_contents.h"

#include <QElapsedTimer>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Checks, shows and prints the electronic files of a month, whoever made them: their structure as two reports, their
/// contents in three grids. It needs no payer, changes neither file nor store, and keeps what it read of a file until
/// another is read.
class frmReadTextFiles : public RecordScreen {
public:
    explicit frmReadTextFiles(Program &program);

    // clang-format off
    Frame framFiles{*this, u"framFiles"_s};
    Label lblHogogPath{framFiles, u"lblHogogPath"_s, {.caption = u"مسير فايل حقوق ماهانه : "_s}};
    Label LabelHogogPath{framFiles, u"LabelHogogPath"_s, {.leftToRight = true}};
    Button cmdShowHogogTextFilePath{framFiles, u"cmdShowHogogTextFilePath"_s, {.caption = u"..."_s, .toolTip = u"انتخاب فايل ليست حقوق"_s}};
    Label lblKholPath{framFiles, u"lblKholPath"_s, {.caption = u"مسير فايل خلاصه ليست : "_s}};
    Label LabelKholPath{framFiles, u"LabelKholPath"_s, {.leftToRight = true}};
    Button cmdShowKholTextFilePath{framFiles, u"cmdShowKholTextFilePath"_s, {.caption = u"..."_s, .toolTip = u"انتخاب فايل خلاصه ليست"_s}};

    Frame framHogog{*this, u"framHogog"_s};
    Button cmdHogogShow{framHogog, u"cmdHogogShow"_s, {.caption = u"نمايش محتوي فايل ليست حقوق و مشخصات کارفرما"_s}};
    Button cmdCheckHogogStructure{framHogog, u"cmdCheckHogogStructure"_s, {.caption = u"کنترل ساختار فايل متني ليست حقوق"_s}};
    CheckBox chkTowFirstLineAreChecked{framHogog, u"chkTowFirstLineAreChecked"_s, {.caption = u"کنترل فقط دو خط اول از ساختار فايل متني(با توجه به تکراري بودن ساختار خطوط دوم به بعد)"_s}};
    CheckBox chkDisplayOnlyHogogErrors{framHogog, u"chkDisplayOnlyHogogErrors"_s, {.caption = u"کليات کنترل و موارد داراي خطا نمايش داده شده و ساير جزئيات نمايش داده نشود"_s}};
    CheckBox chkCreatHogogErrorLogFile{framHogog, u"chkCreatHogogErrorLogFile"_s, {.caption = u"ذخيره جزئيات مربوط به کنترل ساختار بر روي ديسک سخت"_s, .toolTip = u"در صورت طولاني بودن نتيجه کنترل و عدم نمايش کامل آن در اين فرم از اين گزينه جهت ذخيره کامل نتيجه در قالب يک فايل متني استفاده نماييد"_s}};
    Button cmdShowErrorLogFile{framHogog, u"cmdShowErrorLogFile"_s, {.caption = u"نمايش فايل جزئيات ساختار"_s}};
    Label LabelHogogTextErrorLogPath{framHogog, u"LabelHogogTextErrorLogPath"_s, {.leftToRight = true}};

    Frame framKhol{*this, u"framKhol"_s};
    Button cmdKholShow{framKhol, u"cmdKholShow"_s, {.caption = u"نمايش محتوي فايل خلاصه ليست"_s}};
    Button cmdCheckKholStructure{framKhol, u"cmdCheckKholStructure"_s, {.caption = u"کنترل ساختار فايل متني خلاصه ليست"_s}};
    CheckBox chkDisplayOnlyKholErrors{framKhol, u"chkDisplayOnlyKholErrors"_s, {.caption = u"کليات کنترل و موارد داراي خطا نمايش داده شده و ساير جزئيات نمايش داده نشود"_s}};

    Tabs SSTab1{*this, u"SSTab1"_s, {u"خلاصه ليست"_s, u"ليست حقوق"_s, u"مشخصات کارفرما"_s, u"گزارش ساختار ليست حقوق"_s, u"گزارش ساختار خلاصه ليست"_s}};
    Frame framKholContents{SSTab1, u"framKholContents"_s};
    Label lblKhol{framKholContents, u"lblKhol"_s};
    Grid dbgKhol{framKholContents, u"dbgKhol"_s};
    Frame framHogogContents{SSTab1, u"framHogogContents"_s};
    Label lblHogog{framHogogContents, u"lblHogog"_s};
    Frame framBrows{framHogogContents, u"framBrows"_s};
    BrowsePanel browse{*this, framBrows, u"dbgHogog"_s};
    Frame framKarfarma{SSTab1, u"framKarfarma"_s};
    Label lblKarfarma{framKarfarma, u"lblKarfarma"_s};
    Label lblVersion{framKarfarma, u"lblVersion"_s, {.caption = u"نسخه برنامه ايجاد کننده فايل :"_s}};
    Label LabelVersion{framKarfarma, u"LabelVersion"_s};
    Grid dbgKarfarma{framKarfarma, u"dbgKarfarma"_s};
    Frame framHogogStructure{SSTab1, u"framHogogStructure"_s};
    ReportBox txtHogogStructure{framHogogStructure, u"txtHogogStructure"_s, {.spokenName = u"گزارش ساختار ليست حقوق"_s}};
    Frame framKholStructure{SSTab1, u"framKholStructure"_s};
    ReportBox txtKholStructure{framKholStructure, u"txtKholStructure"_s, {.spokenName = u"گزارش ساختار خلاصه ليست"_s}};

    Button cmdPrint{*this, u"cmdPrint"_s, {.caption = u"چاپ"_s}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};

    Picture PPICWaitingMessage{*this, u"PPICWaitingMessage"_s, {.visible = false}};
    Label LabelWaitingMessage{PPICWaitingMessage, u"LabelWaitingMessage"_s, {.caption = u"در حال خواندن و کنترل صحت اطلاعات فايل متني ، لطفا منتظر بمانيد ...  "_s}};
    Label LabelWaitingShare{PPICWaitingMessage, u"LabelWaitingShare"_s};
    Button cmdCancel{PPICWaitingMessage, u"cmdCancel"_s, {.caption = u"انصراف"_s}};
    // clang-format on

    void cmdShowHogogTextFilePath_Click();
    void cmdShowKholTextFilePath_Click();
    void cmdCheckHogogStructure_Click();
    void cmdCheckKholStructure_Click();
    void cmdHogogShow_Click();
    void cmdKholShow_Click();
    void chkCreatHogogErrorLogFile_Click();
    void cmdShowErrorLogFile_Click();
    void cmdPrint_Click();

protected:
    void Form_Load() override;
    bool Form_KeyDown(Key key) override;

private:
    /// Pages of SSTab1.
    enum Page { KholPage, HogogPage, KarfarmaPage, HogogStructurePage, KholStructurePage };
    struct FileControls;

    /// While a check or a load is under way: its panel is shown, all that would start another is closed, and its
    /// button, Escape or the window's close box ends it.
    class Run {
    public:
        explicit Run(frmReadTextFiles &screen);
        ~Run();
        Run(const Run &) = delete;
        Run &operator=(const Run &) = delete;

        /// Shows how far it has come when it is time to, and lets the user act. False when it is to end.
        [[nodiscard]] bool goesOn(qint64 records, qint64 offset, qint64 fileSize);
        [[nodiscard]] bool goesOn();

    private:
        void draw();

        frmReadTextFiles &m_screen;
        Control *m_focused;
        bool m_couldPrint;
        bool m_isCancelled = false;
        QElapsedTimer m_sinceDrawn;
    };

    [[nodiscard]] FileControls controlsOf(FileKind kind);
    void chooseFile(FileKind asked, FileKind other);

    void checkStructure(FileKind kind);
    [[nodiscard]] CheckOutcome runCheck(CheckReport &report);
    void showReport(FileKind kind, const std::shared_ptr<CheckReport> &report);
    [[nodiscard]] CheckOptions checkOptions(FileKind kind) const;
    [[nodiscard]] bool isLogged(FileKind kind) const;
    [[nodiscard]] QString logPath() const;
    [[nodiscard]] bool beginLog();
    void writeLog(CheckReport &report);
    void tellOddities(const FileOddities &oddities);
    void showPlace(FileKind kind, qint64 line);
    [[nodiscard]] bool hasContents(FileKind kind);

    void wireContents();
    [[nodiscard]] std::shared_ptr<const RowSource> openPayees(const QString &select);
    [[nodiscard]] bool loadFile(FileKind kind);
    [[nodiscard]] bool isRefused(FileKind kind);
    void dropContents(FileKind kind);
    void showContents(FileKind kind, FileContents contents);
    void showHogog(FileContents contents, const QString &file);
    void showKhol(const FileContents &contents, const QString &file);
    void tellLoadFailure(FileKind kind, const RunTimeError &failure);
    void showHeading(bool areSought);
    void headClicked();

    void printKhol();
    void printHogog();
    [[nodiscard]] QString payerName() const;

    QString m_monthName; ///< of the file displayed last
    QString m_hogogMonth;
    QString m_hogogYear;
    QString m_hogogHeading;
    std::unique_ptr<ScratchTable> m_payees;
    QString m_hogogShown; ///< the files whose contents are in the grids
    QString m_kholShown;
    QString m_hogogChecked; ///< the files that the reports speak of
    QString m_kholChecked;
    std::shared_ptr<CheckReport> m_hogogReport; ///< null without a report
    std::shared_ptr<CheckReport> m_kholReport;
};

} // namespace zrv
