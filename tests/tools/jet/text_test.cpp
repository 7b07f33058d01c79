// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/tools/jet/jet_fixture.h"

namespace zrv::jet {
namespace {

QString read(const QByteArray &bytes)
{
    const std::vector<unsigned char> copy = bytesOf(bytes);
    return textOf(Bytes{std::span(copy)});
}

TEST(JetTextTest, TwoBytesALetter)
{
    EXPECT_EQ(read({}), QString());
    EXPECT_EQ(read(QByteArray::fromHex("4100CC06")), u"Aی"_s);
}

TEST(JetTextTest, AMarkMeansOneByteALetterAndAZeroTurnsThatRound)
{
    EXPECT_EQ(read(QByteArray::fromHex("FFFE")), QString());
    EXPECT_EQ(read(QByteArray::fromHex("FFFE4142")), u"AB"_s);
    EXPECT_EQ(read(QByteArray::fromHex("FFFE4100CC063306 0042")), u"AیسB"_s);
    EXPECT_EQ(read(QByteArray::fromHex("FFFE00CC06")), u"ی"_s);
    EXPECT_EQ(read(QByteArray::fromHex("FFFEE9")), u"é"_s);
    EXPECT_EQ(read(QByteArray::fromHex("FFFE41000042")), u"AB"_s) << "turned round twice";
}

TEST(JetTextTest, LettersAreGivenAsTheyAre)
{
    EXPECT_EQ(read(QByteArray::fromHex("00D8")), QString(QChar(0xD800)));
    EXPECT_EQ(read(QByteArray::fromHex("410000004200")), QString::fromUtf16(u"A\0B", 3));
    EXPECT_EQ(read(QByteArray::fromHex("4A064300")), u"يC"_s);
}

TEST(JetTextTest, AnEndWithinALetterIsDamage)
{
    EXPECT_THROW((void)read(QByteArray::fromHex("41")), Refused);
    EXPECT_THROW((void)read(QByteArray::fromHex("4100CC")), Refused);
    EXPECT_THROW((void)read(QByteArray::fromHex("FFFE00CC")), Refused);
    EXPECT_THROW((void)read(QByteArray::fromHex("FFFE00CC06CC")), Refused);
}

TEST(JetTextTest, WhatTheWriterCompressesIsReadBack)
{
    const QStringList texts = {u"120226175036"_s, u"تهران، پلاک 18 (واحد 6)"_s, u"a ب c"_s,
                               u"Āb"_s,           u"می‌خواهم"_s,       u"é£ÿ"_s};
    Table table{{u"T"_s, {{u"A"_s, 40}}, {}, {}}, {}};
    for (const QString &text : texts)
        table.rows.push_back({text});
    EXPECT_EQ(rowsIn(jetFile({table}, {.isCompressed = true})), table.rows);
    EXPECT_EQ(rowsIn(jetFile({table})), table.rows);
    EXPECT_TRUE(jetFile({table}, {.isCompressed = true})
                    .contains("\xFF\xFE"
                              "120226175036"));
}

} // namespace
} // namespace zrv::jet
