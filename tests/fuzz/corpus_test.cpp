// SPDX-License-Identifier: GPL-3.0-or-later
// Plays the kept inputs again: each was worth keeping once, the ones named after a fault because they found it.

#include "tests/fuzz/fuzz_target.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

using namespace Qt::Literals::StringLiterals;

TEST(FuzzCorpus, EveryKeptInputIsGoneThroughWithoutHarm)
{
    const QDir corpus(QStringLiteral(ZRV_CORPUS));
    const QStringList names = corpus.entryList(QDir::Files);
    EXPECT_GE(names.size(), 10);
    for (const QString &name : names) {
        QFile file(corpus.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char *>(bytes.constData()),
                                         std::size_t(bytes.size())),
                  0)
            << name.toStdString();
    }
}

} // namespace
