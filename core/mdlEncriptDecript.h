// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Base64 over the codes of the ANSI code page (core/basic/ansi.h), in which an electronic file names
// the version of the program that wrote it.

#include <QString>
#include <QStringView>

namespace zrv {

/// What DecodeBase64() gives for a text that it can't decode. They come as its result and not as a failure:
/// a caller that must know compares with them.
inline constexpr QStringView InvalidBase64Length = u"رشته ورودي جهت رمز گشايي نامعتبر ميباشد";
inline constexpr QStringView InvalidBase64Letter = u"رشته ورودي جهت رمز گشايي حاوي کاراکتر نامعتبر ميباشد";

/// The text in Base64, padded with "=" to a multiple of four letters, without line breaks. A letter that the
/// code page lacks is taken as a question mark.
[[nodiscard]] QString EncodeBase64(QStringView text);

/// The text behind a Base64 text; line ends (CR LF), tabs and blanks in it count for nothing. Of the two
/// faults a length that is no multiple of four goes first. A "=" takes one letter off its group's result
/// wherever it stands.
[[nodiscard]] QString DecodeBase64(QStringView text);

} // namespace zrv
