// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lists/rptHogogTextFile.h"

#include <optional>

namespace zrv {

/// Made-up payees for a list of any length, every one different.
class PayeeRows : public RowSource {
public:
    explicit PayeeRows(int count)
        : m_count(count)
    {
    }

    static QStringList fields()
    {
        return {u"MelliCode"_s,  u"CodeMelliState"_s, u"Name"_s,           u"Family"_s,
                u"FatherName"_s, u"PostCode"_s,       u"Semat"_s,          u"Sabege"_s,
                u"Madrak"_s,     u"Rasteh"_s,         u"ShakhsMoafCode"_s, u"EstekhdamType"_s,
                u"BimehType"_s,  u"InsuNo"_s,         u"JariSumHogog"_s,   u"FinalDaramadeMashmol"_s,
                u"FinalTax"_s};
    }

    static rptHogogTextFile::Header header()
    {
        return {.TaxMonth = u"ارديبهشت"_s,
                .txtYear = u"1389"_s,
                .txtName = u"شرکت نمونه - دفتر مرکزي"_s,
                .today = {2010, 5, 24}};
    }

    [[nodiscard]] int rowCount() const override { return m_count; }
    [[nodiscard]] QString cell(int row, int column) const override
    {
        ++cellsRead;
        return cell(row, QStringView(fields()[column]));
    }

    [[nodiscard]] QString cell(int row, QStringView field) const
    {
        const auto one = [row](const QStringList &texts) { return texts[row % texts.size()]; };
        if (field == u"MelliCode")
            return QString::number(1'000'000'001 + qint64(row) * 7);
        if (field == u"CodeMelliState")
            return u"*****"_s;
        if (field == u"Name")
            return one({u"مريم"_s, u"محمد رضا"_s, u"عبدالمجيد السادات"_s});
        if (field == u"Family")
            return one({u"آذري"_s, u"کريمي پور"_s, u"حسيني علوي طباطبايي خوراسگاني اصل دولت آبادي بزرگ"_s});
        if (field == u"FatherName")
            return one({u"علي"_s, u"غلامحسين"_s});
        if (field == u"PostCode")
            return QString::number(1'134'567'890 + qint64(row));
        if (field == u"Semat")
            return one({u"کارشناس"_s, u"مدير امور مالي و اداري"_s});
        if (field == u"Sabege")
            return QString::number(row % 31);
        if (field == u"Madrak")
            return one({u"ليسانس"_s, u"فوق ديپلم"_s, u"دکترا"_s});
        if (field == u"Rasteh")
            return one({u"اداري و مالي"_s, u"فني و مهندسي"_s});
        if (field == u"ShakhsMoafCode")
            return one({u"مشمول ماليات"_s, u"مناطق کمتر توسعه يافته"_s});
        if (field == u"EstekhdamType")
            return one({u"رسمي"_s, u"قراردادي"_s});
        if (field == u"BimehType")
            return bimehType;
        if (field == u"InsuNo")
            return QString::number(100'000'000'001 + qint64(row));
        if (field == u"JariSumHogog")
            return QString::number(3'000'000 + qint64(row) * 131'071);
        if (field == u"FinalDaramadeMashmol")
            return QString::number(2'000'000 + qint64(row) * 65'537);
        if (field == u"FinalTax")
            return finalTax.value_or(QString::number(qint64(row) * 8'191));
        return {};
    }

    QString bimehType = u"تامين اجتماعي"_s;
    std::optional<QString> finalTax;
    mutable int cellsRead = 0;

private:
    int m_count;
};

} // namespace zrv
