#pragma once

#include "Namespace.h"

namespace AdvancedControl {

/// Numbers of the controls that a page's template, its table and its class all name. A number is
/// unique within a dialog.
namespace ControlId {
namespace Advance {
inline constexpr int Close = 1;
inline constexpr int Tabs = 20001;
}  // namespace Advance

namespace Status {
inline constexpr int Power = 20008;
inline constexpr int Error = 20010;
inline constexpr int LampTime = 20014;
inline constexpr int Reset = 20019;
}  // namespace Status

namespace Input {
inline constexpr int PowerUpInput = 21057;
}  // namespace Input

namespace Other {
inline constexpr int PowerOn = 20100;
inline constexpr int PowerOff = 20101;
inline constexpr int Power = 20102;
inline constexpr int InputSource = 20103;
}  // namespace Other

namespace InputType5 {
inline constexpr int Progressive = 20294;
inline constexpr int VideoNr = 20295;
inline constexpr int ThreeDYcs = 20296;
inline constexpr int ColorSpace = 20297;
inline constexpr int Component = 20298;
inline constexpr int CVideoFormat = 20299;
inline constexpr int SVideoFormat = 20300;
inline constexpr int M1D = 20301;
inline constexpr int FrameLock = 20302;
inline constexpr int RgbIn1 = 20303;
inline constexpr int RgbIn2 = 20304;
inline constexpr int FrameLockComputer1 = 20305;
inline constexpr int FrameLockComputer2 = 20306;
inline constexpr int Hdmi = 20307;
inline constexpr int FrameLockHdmi = 20308;
inline constexpr int FrameLockRgb1 = 20309;
inline constexpr int FrameLockRgb2 = 20310;
inline constexpr int ComputerIn1 = 20311;
inline constexpr int ComputerIn2 = 20312;
}  // namespace InputType5

namespace OptionType5 {
inline constexpr int CcDisplay = 20292;
inline constexpr int CcMode = 20293;
inline constexpr int CcChannel = 20294;
inline constexpr int AutoSearch = 20364;
inline constexpr int AutoKeystone = 20365;
inline constexpr int AutoOn = 20366;
inline constexpr int AutoOffMinus = 20367;
inline constexpr int AutoOffPlus = 20368;
inline constexpr int AutoOff = 20369;
inline constexpr int AutoOffField = 20370;
inline constexpr int MyButton1 = 20371;
inline constexpr int MyButton2 = 20372;
inline constexpr int Service = 20373;
inline constexpr int MySource = 20374;
}  // namespace OptionType5

namespace Service {
inline constexpr int AutoAdjust = 20374;
inline constexpr int IrFront = 20375;
inline constexpr int IrRear = 20376;
inline constexpr int IrTop = 20377;
inline constexpr int IrFrequencyNormal = 20378;
inline constexpr int IrFrequencyHigh = 20379;
inline constexpr int Close = 20380;
inline constexpr int FocusLock = 20381;
}  // namespace Service

namespace AudioType5 {
inline constexpr int TrebleField = 20315;
inline constexpr int BassField = 20316;
inline constexpr int VolumeMinus = 20345;
inline constexpr int VolumePlus = 20346;
inline constexpr int Volume = 20347;
inline constexpr int TrebleMinus = 20348;
inline constexpr int TreblePlus = 20349;
inline constexpr int Treble = 20350;
inline constexpr int BassMinus = 20351;
inline constexpr int BassPlus = 20352;
inline constexpr int Bass = 20353;
inline constexpr int Speaker = 20354;
inline constexpr int VolumeField = 20355;
inline constexpr int Rgb1 = 20356;
inline constexpr int Rgb2 = 20358;
inline constexpr int M1D = 20359;
inline constexpr int Video = 20360;
inline constexpr int SVideo = 20361;
inline constexpr int Component = 20362;
inline constexpr int Miu = 20363;
inline constexpr int HdmiAudio = 20364;
inline constexpr int Computer1 = 20365;
inline constexpr int Computer2 = 20366;
inline constexpr int Hdmi = 20367;
inline constexpr int OutStandby = 20368;
inline constexpr int SrsWow = 20381;
}  // namespace AudioType5

namespace SetupType5 {
inline constexpr int KeystoneHField = 20141;
inline constexpr int VolumeField = 20142;
inline constexpr int DZoomField = 20143;
inline constexpr int DShiftVField = 20144;
inline constexpr int DShiftHField = 20145;
inline constexpr int AutoKeystone = 20305;
inline constexpr int KeystoneVMinus = 20308;
inline constexpr int KeystoneVPlus = 20309;
inline constexpr int KeystoneV = 20310;
inline constexpr int KeystoneH = 20311;
inline constexpr int KeystoneHMinus = 20312;
inline constexpr int KeystoneHPlus = 20313;
inline constexpr int KeystoneVField = 20314;
inline constexpr int Whisper = 20315;
inline constexpr int Mirror = 20316;
inline constexpr int Volume = 20317;
inline constexpr int VolumeMinus = 20318;
inline constexpr int VolumePlus = 20319;
inline constexpr int AudioRgb1 = 20320;
inline constexpr int Speaker = 20321;
inline constexpr int AudioRgb2 = 20322;
inline constexpr int AudioVideo = 20323;
inline constexpr int AudioSVideo = 20324;
inline constexpr int AudioComponent = 20325;
inline constexpr int AudioMiu = 20326;
inline constexpr int Reset = 20327;
inline constexpr int ResetExecute = 20328;
inline constexpr int AudioHdmi = 20329;
inline constexpr int HdmiAudio = 20330;
inline constexpr int DZoomMinus = 20331;
inline constexpr int DZoom = 20332;
inline constexpr int DZoomPlus = 20333;
inline constexpr int DShiftHMinus = 20334;
inline constexpr int DShiftVPlus = 20335;
inline constexpr int DShiftVMinus = 20336;
inline constexpr int CurrentInput = 20337;
inline constexpr int DShiftHPlus = 20350;
inline constexpr int MonitorOutComputer1 = 20360;
inline constexpr int MonitorOutComputer2 = 20361;
inline constexpr int MonitorOutHdmi = 20362;
inline constexpr int MonitorOutComponent = 20363;
inline constexpr int MonitorOutSVideo = 20364;
inline constexpr int MonitorOutVideo = 20365;
inline constexpr int MonitorOutMiu = 20366;
inline constexpr int MonitorOutStandby = 20367;
inline constexpr int StandbyMode = 20368;
inline constexpr int AudioComputer1 = 20369;
inline constexpr int AudioComputer2 = 20370;
inline constexpr int MonitorOutRgb1 = 20371;
inline constexpr int MonitorOutRgb2 = 20372;
}  // namespace SetupType5

// Of the picture pages with custom pop-ups.
namespace Picture {
inline constexpr int CustomGamma = 20133;
inline constexpr int BrightnessMinus = 20134;
inline constexpr int BrightnessPlus = 20135;
inline constexpr int Brightness = 20136;
inline constexpr int ContrastMinus = 20137;
inline constexpr int Contrast = 20138;
inline constexpr int ContrastPlus = 20139;
inline constexpr int Gamma = 20142;
inline constexpr int CustomColorTemp = 20143;
inline constexpr int ColorTemp = 20144;
inline constexpr int ColorMinus = 20147;
inline constexpr int SharpnessMinus = 20148;
inline constexpr int ColorPlus = 20149;
inline constexpr int SharpnessPlus = 20150;
inline constexpr int Color = 20151;
inline constexpr int Sharpness = 20152;
inline constexpr int Reset = 20157;
inline constexpr int ActiveIris = 20293;
inline constexpr int BrightnessField = 20329;
inline constexpr int ContrastField = 20330;
inline constexpr int ColorField = 20331;
inline constexpr int TintField = 20332;
inline constexpr int SharpnessField = 20333;
inline constexpr int TintMinus = 21061;
inline constexpr int Tint = 21062;
inline constexpr int TintPlus = 21063;
inline constexpr int MyMemory = 21064;
inline constexpr int MyMemoryExecute = 21065;
inline constexpr int ResetExecute = 21070;
}  // namespace Picture
}  // namespace ControlId

}  // namespace AdvancedControl
