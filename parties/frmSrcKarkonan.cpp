// SPDX-License-Identifier: GPL-3.0-or-later
#include "parties/frmSrcKarkonan.h"

#include "core/containers.h"
#include "core/store/connection.h"
#include "parties/payee_grid.h"

namespace zrv {

frmSrcKarkonan::frmSrcKarkonan(Program &program)
    : RecordScreen(program, u"frmSrcKarkonan"_s)
{
    setCaption(lblForm.caption());
    FormatGrid();
    // Post code and insurance number don't start a search by themselves.
    for (TextBox *field : {&txtMelliCode, &txtName, &txtFamily, &txtFatherName})
        field->onChange = [this] {
            if (chkAutoSearch.isChecked())
                SearchRoutine();
        };
    cmdComboSearch.onClick = [this] { SearchRoutine(); };
    browse.onPick = [this] { ReturnSelection(); };
    cmdExit.onClick = [this] { unload(); };
}

void frmSrcKarkonan::Form_Load()
{
    EnableContainer(u"framSearch", *this);
    EnableContainer(u"framBrows", *this);
    chkAutoSearch.setEnabled(true);
    browse.reset();
    browse.OptSort.setChecked(true);
    FillGrid();
}

void frmSrcKarkonan::FormatGrid()
{
    browse.LabelGridCountCaption.setCaption(u"تعداد حقوق بگيران :"_s);
    browse.setUp({.all = payeeSelect,
                  .order = u" ORDER BY MelliCode "_s,
                  .search = [](const QString &sought) { return QString(payeeSelect() + u" WHERE "_s + sought); },
                  .countFormat = u"#,##0"_s},
                 payeeColumns(u" کـد ملي "_s));
}

void frmSrcKarkonan::FillGrid()
{
    browse.fill();
}

/// Every field that holds something, alike or equal; empty when none does. Wildcards that a user types are honoured
/// either way.
QString frmSrcKarkonan::condition() const
{
    QStringList clauses;
    for (const QStringView column : {u"MelliCode", u"Name", u"Family", u"FatherName", u"PostCode", u"InsuNo"}) {
        const QString text = fieldOf(column).text().trimmed();
        if (!text.isEmpty())
            clauses += column + u" LIKE "_s + quoted(optLikeSearch.isChecked() ? QString(u'%' + text + u'%') : text);
    }
    return clauses.isEmpty() ? QString() : QString(u" WHERE "_s + clauses.join(u" AND "));
}

void frmSrcKarkonan::SearchRoutine()
{
    browse.show(payeeSelect() + condition(), u" ORDER BY val(MelliCode) "_s);
}

void frmSrcKarkonan::ReturnSelection()
{
    if (m_program.SearchCallerName.isEmpty())
        return;
    m_program.SelectedMelliCode = browse.grid.currentCell(u"MelliCode");
    unload();
}

} // namespace zrv
