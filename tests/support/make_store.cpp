// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/new_store.h"
#include <cstdio>
int main(int, char **argv) { zrv::createStore(QString::fromLocal8Bit(argv[1]) + QStringLiteral("/DBZorvan.mdb")); return 0; }
