#pragma once

#include "toolkit/ResourceModule.h"

/// Numbers of the dialog templates.
namespace TemplateId {
inline constexpr int Advance = 22151;

inline constexpr int Status = 20000;
inline constexpr int Main = 22153;
inline constexpr int Main2 = 20003;
inline constexpr int Picture1 = 22154;
inline constexpr int Picture12 = 20005;
inline constexpr int Picture2 = 22155;
inline constexpr int Picture22 = 20009;
inline constexpr int Input = 22156;
inline constexpr int Input2 = 20011;
inline constexpr int Auto = 22157;
inline constexpr int Auto2 = 20013;
inline constexpr int Option = 22159;
inline constexpr int Option2 = 20014;
inline constexpr int Screen = 22158;
inline constexpr int Other = 22152;
inline constexpr int Image = 20020;
inline constexpr int Image4 = 20029;
inline constexpr int Video = 20031;
inline constexpr int Input4 = 20033;
inline constexpr int Screen4 = 20035;
inline constexpr int Setup4 = 20037;
inline constexpr int Option4 = 20039;
inline constexpr int Other4 = 20041;
inline constexpr int Pic = 22160;
inline constexpr int PictureType5 = 107;
inline constexpr int InputType5 = 20046;
inline constexpr int SetupType5 = 20048;
inline constexpr int AudioType5 = 20050;
inline constexpr int OptionType5 = 20052;
inline constexpr int Setup = 20016;
inline constexpr int Input3 = 20018;
inline constexpr int Option3 = 20022;

inline constexpr int Gamma = 20026;
inline constexpr int ColorTemp = 20028;
inline constexpr int Service = 20054;
}  // namespace TemplateId

/// Size of every page, in dialog units.
inline constexpr int kPageWidth = 405;
inline constexpr int kPageHeight = 220;

/// The library's own templates.
const ResourceModule& AdvancedControlResources();
