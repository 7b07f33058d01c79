// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct sqlite3;

namespace zrv {

/// Gives a connection the functions that the dialect has and SQLite lacks:
///   zrv_val(x)           the leading number of a text, whole where it is whole; 0 for NULL and for no number
///   zrv_sum(x)           the sum of zrv_val over the rows whose x isn't NULL; NULL if there is none.
///                        Whole sums are exact; one beyond 64 bits is an error
///   zrv_cstr(x)          a number as text, without exponent as long as it is whole
///   zrv_join(a, b)       the dialect's `&`: NULL counts as empty unless both are NULL
///   zrv_like(t, pattern) the dialect's LIKE (core/store/like.h)
///   zrv_order(t)         the key of a text's place in the Persian alphabet (core/store/persian_order.h)
///   zrv_format(x, p)     Format of core/basic/number_format.h
///   zrv_left, zrv_right, zrv_mid, zrv_ucase, zrv_lcase
/// Texts are NULL where the text they are made of is NULL.
void addSqlFunctions(sqlite3 *database);

} // namespace zrv
