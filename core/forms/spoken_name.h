// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What a screen reader says of a screen. Captions are drawn for the eye; here is what is left of them for the ear, and
// how a field comes by the caption that stands beside it.

#include <QString>

#include <vector>

namespace zrv {

class Control;
class Label;

/// A caption as it is read aloud: without the strokes that draw letters out, the colon before a field, doubled blanks, and
/// the signs that only steer a display.
[[nodiscard]] QString spokenText(const QString &caption);

/// The label that is declared before a field, with nothing but other fields between them; null when there is none.
[[nodiscard]] const Label *labelOf(const Control &field);
/// The fields whose label this is.
[[nodiscard]] std::vector<Control *> fieldsOf(const Label &label);

/// What a control is called. Whatever bears a caption is called by it, without marks of keys, a button of dots by its
/// tooltip. A field is called by its label and by the word of its own, if any, that tells it from others behind that
/// label. What has neither, such as a grid, is called by the caption of the group, the page or the form that it lies in.
[[nodiscard]] QString fullSpokenName(const Control &control, const QString &ownWord = {});

} // namespace zrv
