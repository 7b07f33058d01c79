// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zrv {

class Control;
class FormWindow;

/// The property of a widget whose accessible name its layout has given it.
inline constexpr char NamedByLayout[] = "namedByLayout";

/// Gives the widgets of a window the names under which a screen reader knows them: those of spoken_name.h. Figures that
/// stand in a table have been named by the layout, after their line and their column. Called when all is placed, and when
/// the form has another caption.
void nameWidgets(const FormWindow &window);

/// A control has another caption: so has its widget, and the fields beside a label.
void renameWidgets(const FormWindow &window, const Control &control);

} // namespace zrv
