#pragma once

// What the menu and software catalogs show of the host application: the English texts of
// advanced-control.desktop and of the metainfo file, for the tools that collect texts.
// cmake/TranslatePackage.cmake puts the translations into those files.

#include <QCoreApplication>

[[maybe_unused]] inline constexpr const char* kPackageTexts[] = {
    //: The name of the program in the menu.
    QT_TRANSLATE_NOOP("Package", "Advanced Control"),
    //: What kind of program it is, in the menu.
    QT_TRANSLATE_NOOP("Package", "Projector Settings"),
    QT_TRANSLATE_NOOP("Package", "Read and change the settings of projectors"),
    //: Words that people may search for, each with a semicolon behind it; as many as are useful.
    QT_TRANSLATE_NOOP("Package", "projector;beamer;brightness;keystone;"),
    QT_TRANSLATE_NOOP(
        "Package",
        "A list that shows how hundreds of projectors are and changes many of them at once, and "
        "for each of them a dialog with a tab per group of settings. Every value is read live from "
        "the projector, and every change is sent at once. A log shows each command and its "
        "result."),
    QT_TRANSLATE_NOOP("Package", "Projectors can be simulated, with faults that are set by hand."),
};
