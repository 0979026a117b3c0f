#pragma once

#include "Namespace.h"

namespace AdvancedControl {

/// Numbers of the message catalog: captions, and the entries of lists. Those of errors are in
/// `ErrorNumbers.h`. The texts are in `resources/catalog`, one file per category. A caption that a
/// template names ("73;Brightness") needs no name here. The build fails if a number in these files
/// or in a template has no text in English or Simplified Chinese.

inline constexpr int kCaptionCategory = 4;  ///< Captions of controls, tabs and dialogs.
inline constexpr int kListCategory = 5;     ///< Entries of lists, texts of states.

namespace Caption {
// Titles of the dialog.
inline constexpr int TitleNetwork = 155;  // %1 model name, %2 address
inline constexpr int TitleSerial = 170;   // %1 model name, %2 port number (integer)

// Tabs.
inline constexpr int TabStatus = 156;
inline constexpr int TabMain = 157;
inline constexpr int TabPicture1 = 158;
inline constexpr int TabPicture2 = 159;
inline constexpr int TabInput = 160;
inline constexpr int TabAuto = 161;
inline constexpr int TabScreen = 162;
inline constexpr int TabOption = 163;
inline constexpr int TabOther = 164;
inline constexpr int TabSetup = 165;
inline constexpr int TabPicture = 166;
inline constexpr int TabImage = 167;
inline constexpr int TabVideo = 3168;
inline constexpr int TabAudio = 3169;

// Buttons of message boxes.
inline constexpr int Ok = 4220;
inline constexpr int Yes = 4221;
inline constexpr int No = 4222;
inline constexpr int Cancel = 4223;
}  // namespace Caption

/// A number that ends in `Base` starts a run: the text is that of the base plus an index or a
/// device value. The values that have a text are listed in `cmake/CheckCatalog.cmake`.
namespace ListText {
// Switches of most lists.
inline constexpr int Off = 30;
inline constexpr int On = 31;
inline constexpr int SwitchOff = 327;
inline constexpr int SwitchOn = 329;
inline constexpr int Auto = 98;
inline constexpr int Disable = 141;
inline constexpr int Enable = 142;

// Picture: lists of the model.
inline constexpr int GammaBase = 204;               // + device value
inline constexpr int ColorTempBase = 250;           // + device value
inline constexpr int Picture1ColorTempBase = 2250;  // + device value
inline constexpr int AspectBase = 1;                // + device value
inline constexpr int WideAspectBase = 350;          // + device value; ModelCode 8, 10, 47, 48

// Picture: active iris, memories.
inline constexpr int IrisTheater = 303;
inline constexpr int IrisPresentation = 304;
inline constexpr int MyMemoryBase = 280;  // + 0..3 load, 4..7 save

// Entries of the reset lists.
inline constexpr int Brightness = 105;
inline constexpr int PicBrightness = 3105;  // only on the picture page of dialog type 4
inline constexpr int Contrast = 106;
inline constexpr int Keystone = 107;
inline constexpr int Color = 290;
inline constexpr int Tint = 291;
inline constexpr int Sharpness = 292;
inline constexpr int ColorBalR = 296;
inline constexpr int ColorBalG = 297;
inline constexpr int ColorBalB = 298;
inline constexpr int VPosition = 299;
inline constexpr int HPosition = 300;
inline constexpr int HSize = 301;
inline constexpr int OverScan = 302;
inline constexpr int Picture22OverScan = 363;
inline constexpr int ElectricZoom = 4100;
inline constexpr int KeystoneV = 334;
inline constexpr int KeystoneH = 335;
inline constexpr int DZoom = 414;
inline constexpr int DShiftV = 415;
inline constexpr int DShiftH = 416;
inline constexpr int MenuPositionV = 448;
inline constexpr int MenuPositionH = 449;

// Custom pop-ups: test patterns.
inline constexpr int PatternOff = 3374;
inline constexpr int PatternGrayScale9 = 3050;
inline constexpr int PatternGrayScale15 = 3051;
inline constexpr int PatternRamp = 52;

// Whisper and mirror.
inline constexpr int WhisperNormal = 25;
inline constexpr int WhisperWhisper = 26;
inline constexpr int WhisperBright = 27;
inline constexpr int MirrorNormal = 21;
inline constexpr int MirrorHInverse = 22;
inline constexpr int MirrorVInverse = 23;
inline constexpr int MirrorHVInverse = 24;

// Audio and standby.
inline constexpr int Audio1 = 40;
inline constexpr int Audio2 = 41;
inline constexpr int Audio3 = 42;
inline constexpr int Audio4 = 43;
inline constexpr int AudioMIU = 44;
inline constexpr int AudioHDMI = 45;
inline constexpr int AudioOnly = 1000;  // the one audio input of ModelCode 38
inline constexpr int SurroundMid = 32;
inline constexpr int SurroundHigh = 33;
inline constexpr int StandbyNormal = 1020;
inline constexpr int StandbySaving = 1021;

// Image and screen pages.
inline constexpr int BlankBlue = 60;
inline constexpr int BlankWhite = 61;
inline constexpr int BlankBlack = 62;
inline constexpr int BlankMyScreen = 63;
inline constexpr int BlankOriginal = 64;
inline constexpr int ImageMirrorNormal = 65;
inline constexpr int ImageMirrorHInverse = 66;
inline constexpr int ImageMirrorVInverse = 67;
inline constexpr int ImageMirrorHVInverse = 68;
inline constexpr int StartupOff = 330;
inline constexpr int StartupOn = 331;

// Picture in picture, image and input pages.
inline constexpr int PinPInputVideo = 87;
inline constexpr int PinPInputSVideo = 88;
inline constexpr int PinPInputComponent = 89;
inline constexpr int PinPUpperLeft = 90;
inline constexpr int PinPUpperRight = 91;
inline constexpr int PinPBottomLeft = 92;
inline constexpr int PinPBottomRight = 93;
inline constexpr int PinPAudioRgb = 94;
inline constexpr int PinPLarge = 95;
inline constexpr int PinPSmall = 96;
inline constexpr int PinPSizeOff = 330;
inline constexpr int InputPinPSizeOff = 3330;  // only on the input page of dialog type 1

// Screen pages.
inline constexpr int LanguageBase = 110;  // + position; each language in its own name
inline constexpr int MyScreenSizeX1 = 430;
inline constexpr int MyScreenSizeFull = 431;
inline constexpr int TemplateTestPattern = 432;
inline constexpr int TemplateDotLine1 = 433;
inline constexpr int TemplateDotLine2 = 434;
inline constexpr int TemplateDotLine3 = 435;
inline constexpr int TemplateDotLine4 = 436;
inline constexpr int TemplateCircle1 = 437;
inline constexpr int TemplateCircle2 = 438;
inline constexpr int TemplateMap1 = 439;
inline constexpr int TemplateMap2 = 440;
inline constexpr int PbyPSizeSmall = 441;
inline constexpr int PbyPSizeMiddle = 442;
inline constexpr int PbyPSizeLarge = 443;
inline constexpr int PbyPSizeFull = 444;
inline constexpr int PbyPAreaLeft = 445;
inline constexpr int PbyPAreaRight = 446;

// Input pages.
inline constexpr int ProgressiveTv = 2011;
inline constexpr int ProgressiveFilm = 2012;
inline constexpr int LegacyProgressiveTv = 370;
inline constexpr int LegacyProgressiveFilm = 326;
inline constexpr int NoiseReductionLow = 367;
inline constexpr int NoiseReductionMiddle = 3368;
inline constexpr int LegacyNoiseReductionMiddle = 368;
inline constexpr int NoiseReductionHigh = 369;
inline constexpr int YcsMovie = 417;
inline constexpr int YcsStillImage = 3418;
inline constexpr int LegacyYcsNormal = 338;
inline constexpr int LegacyYcsStillImage = 97;
inline constexpr int HdmiAuto = 405;
inline constexpr int HdmiNormal = 406;
inline constexpr int HdmiEnhanced = 407;
inline constexpr int M1DNormal = 17;
inline constexpr int M1DEnhanced = 104;
inline constexpr int SyncOnGreenOff = 102;
inline constexpr int SyncOnGreenOn = 103;
inline constexpr int LastInput = 3371;

// Option page: closed captions and my buttons.
inline constexpr int ClosedCaptionOff = 408;
inline constexpr int ClosedCaptionOn = 409;
inline constexpr int ClosedCaptionAuto = 410;
inline constexpr int ClosedCaptionCaptions = 411;
inline constexpr int ClosedCaptionText = 412;
inline constexpr int MyButtonBase = 170;  // + function code
inline constexpr int MyButtonComputer1 = 1001;
inline constexpr int MyButtonComputer2 = 1002;
inline constexpr int MyButtonComputer = 1003;
inline constexpr int MyButtonHdmi = 1006;
inline constexpr int MyButtonTemplate = 1007;
inline constexpr int MyButtonMiuLiveMode = 1008;
inline constexpr int MyButtonMiuSlideshow = 1009;
inline constexpr int MyButtonMiuDirectory = 1010;
inline constexpr int MyButtonMiuMyImage = 1011;
inline constexpr int MyButtonMiuMessenger = 1012;
inline constexpr int MyButtonDZoom = 1013;
inline constexpr int MyButtonDShift = 1014;
inline constexpr int MyButtonMySource = 1015;
inline constexpr int MyButtonPbyP = 1016;
inline constexpr int MyButtonOther = 1017;  // an assigned function that is not in the list
inline constexpr int MyButtonAvMute = 1018;

// Service dialog.
inline constexpr int AutoAdjustFine = 1004;
inline constexpr int AutoAdjustFast = 1005;
inline constexpr int FocusLockOff = 408;
inline constexpr int FocusLockOn = 409;

// Status page.
inline constexpr int StatusValue = 319;  // %1 the text of the state
inline constexpr int Hours = 320;        // %1 hours (integer)
inline constexpr int FilterTime = 321;
inline constexpr int LampTime = 322;
inline constexpr int PowerCoolingDown = 3309;
inline constexpr int PowerStandby = 4331;    // for lists and scripts; the status row shows Off
inline constexpr int PowerWarmingUp = 4330;  // for lists and scripts; the status row shows On
inline constexpr int ErrorNone = 332;
inline constexpr int ErrorCover = 3310;
inline constexpr int ErrorFan = 3311;
inline constexpr int ErrorLamp = 3312;
inline constexpr int ErrorTemperature = 3313;
inline constexpr int ErrorAirFlow = 3314;
inline constexpr int ErrorLampTime = 3315;
inline constexpr int ErrorCool = 3316;
inline constexpr int ErrorFilter = 3317;
inline constexpr int ErrorOther = 3318;
inline constexpr int ErrorStatus12 = 413;
inline constexpr int Freeze = 3333;
inline constexpr int FreezeNormal = 3336;

// Main, option and other pages of the older page sets.
inline constexpr int NoSettings = 4200;  // a sentence on a page without rows
inline constexpr int LensStandard = 4201;
inline constexpr int LensShortThrow = 4202;
inline constexpr int LensLongThrow = 4203;
inline constexpr int PositionCenter = 4204;
inline constexpr int PositionTop = 4205;
inline constexpr int PositionBottom = 4206;
inline constexpr int MenuColorGray = 4207;
inline constexpr int MenuColorGreen = 4208;
inline constexpr int AllRemoteIds = 4209;

// Texts of the dialog while it waits for the projector, and about rows.
inline constexpr int Reading = 4300;  // %1 of %2 (integers)
inline constexpr int Waiting = 4301;
inline constexpr int NoAnswer = 4302;
inline constexpr int ReadRefused = 4303;
inline constexpr int ReadUnanswered = 4304;
inline constexpr int NoEntries = 4305;
inline constexpr int RangeNote = 4306;  // %1 to %2 (integers)
inline constexpr int Retry = 4307;
inline constexpr int NotOffered = 4308;

// Why the projector did not answer.
inline constexpr int WrongParameters = 4310;
inline constexpr int AddressUnknown = 4311;
inline constexpr int NotReachable = 4312;
inline constexpr int ConnectionLost = 4313;
inline constexpr int NotUnderstood = 4314;
inline constexpr int OtherVersion = 4315;
inline constexpr int PasswordRequired = 4316;

// Outcomes of changes, shown beside Close.
inline constexpr int NotYetSo = 4317;
inline constexpr int NotPossibleNow = 4318;

// A row's context menu, and the search for a row.
inline constexpr int WhenOpened = 4320;  // %1 the value's text
inline constexpr int PutBack = 4321;
inline constexpr int EnterValue = 4322;
inline constexpr int Copy = 4323;
inline constexpr int FindSetting = 4324;
inline constexpr int NothingFound = 4325;
inline constexpr int NumberWanted = 4326;  // %1 to %2 (integers)

// What came of an action, shown beside Close. %1 names the row, with the value if there is one.
inline constexpr int NotAccepted = 4340;
inline constexpr int NotAcceptedHas = 4341;  // %2 the value that the projector has
inline constexpr int ResetDone = 4342;
inline constexpr int ActionDone = 4343;
inline constexpr int ActionSent = 4344;         // of an action without a result
inline constexpr int ChoiceGoesNowhere = 4345;  // %1 the entry
inline constexpr int MemoryDoneBase = 4350;     // + 0..3 loaded, 4..7 saved

// Why a row cannot be used.
inline constexpr int OnlyShown = 4360;
inline constexpr int OnlyForCustomGamma = 4361;
inline constexpr int OnlyForCustomColorTemp = 4362;
inline constexpr int NotWhileCoolingDown = 4363;

// The line over the tabs.
inline constexpr int Answers = 4370;
inline constexpr int DoesNotAnswer = 4371;
inline constexpr int ReadNow = 4372;
inline constexpr int ReadSeconds = 4373;  // %1 seconds ago (integer)
inline constexpr int ReadMinutes = 4374;  // %1 minutes ago (integer)
inline constexpr int ReadAgain = 4375;
inline constexpr int KeepUpToDate = 4376;

// Settings that the projector should have.
inline constexpr int Wanted = 4380;           // %1 the value's text
inline constexpr int SetToWanted = 4381;      // %1 the value's text
inline constexpr int NotAsWanted = 4382;      // %1 settings (integer)
inline constexpr int SeenNotAsWanted = 4383;  // %1 settings when they were last seen (integer)

// Units, shown behind a number.
inline constexpr int Minutes = 4390;
inline constexpr int Percent = 4391;
}  // namespace ListText

}  // namespace AdvancedControl
