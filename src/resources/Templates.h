#pragma once

#include "toolkit/DialogTemplate.h"

extern const DialogTemplate kAdvanceTemplate;
extern const DialogTemplate kStatusTemplate;
extern const DialogTemplate kPictureType5Template;
extern const DialogTemplate kGammaTemplate;
extern const DialogTemplate kColorTempTemplate;
extern const DialogTemplate kSetupType5Template;
extern const DialogTemplate kInputType5Template;
extern const DialogTemplate kOptionType5Template;
extern const DialogTemplate kServiceTemplate;
extern const DialogTemplate kAudioType5Template;
extern const DialogTemplate kPicTemplate;
extern const DialogTemplate kPicture1Template;
extern const DialogTemplate kPicture12Template;
extern const DialogTemplate kPicture2Template;
extern const DialogTemplate kPicture22Template;
extern const DialogTemplate kImageTemplate;
extern const DialogTemplate kImage4Template;
extern const DialogTemplate kSetupTemplate;
extern const DialogTemplate kSetup4Template;
extern const DialogTemplate kScreenTemplate;
extern const DialogTemplate kScreen4Template;
extern const DialogTemplate kInputTemplate;
extern const DialogTemplate kInput2Template;
extern const DialogTemplate kInput3Template;
extern const DialogTemplate kInput4Template;
extern const DialogTemplate kVideoTemplate;
extern const DialogTemplate kMainTemplate;
extern const DialogTemplate kMain2Template;
extern const DialogTemplate kAutoTemplate;
extern const DialogTemplate kAuto2Template;
extern const DialogTemplate kOptionTemplate;
extern const DialogTemplate kOption2Template;
extern const DialogTemplate kOption3Template;
extern const DialogTemplate kOption4Template;
extern const DialogTemplate kOtherTemplate;
extern const DialogTemplate kOther4Template;
