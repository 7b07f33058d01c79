// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zrv {

class FormWindow;
class LayoutBuilder;

/// Places the widgets of a window: by the layout of its screen, or, for a screen without one, in their order below
/// each other, so that nothing is out of reach.
void layOut(FormWindow &window);

// One function a screen, each in a file of its own.
void layOutEnterance_Door(LayoutBuilder &b);
void layOutMain(LayoutBuilder &b);
void layOutAbout(LayoutBuilder &b);
void layOutEncodeDecode(LayoutBuilder &b);
void layOutCreatTextFiles(LayoutBuilder &b);
void layOutReadTextFiles(LayoutBuilder &b);
void layOutCodingCalls(LayoutBuilder &b);
void layOutCoding(LayoutBuilder &b);
void layOutUser_Defination(LayoutBuilder &b);
void layOutKarfarma(LayoutBuilder &b);
void layOutKarkonan(LayoutBuilder &b);
void layOutSrcKarkonan(LayoutBuilder &b);
void layOutHogog1(LayoutBuilder &b);
void layOutKholList(LayoutBuilder &b);
void layOutTransferData(LayoutBuilder &b);
void layOutVersionsFacilities(LayoutBuilder &b);
void layOutUpgradeDatabaseStructureAndUpdateUserRecords(LayoutBuilder &b);
void layOutUpgradeZRVtbKarkonan(LayoutBuilder &b);
void layOutUpgrades(LayoutBuilder &b);
void layOutMakeShobe(LayoutBuilder &b);

} // namespace zrv
