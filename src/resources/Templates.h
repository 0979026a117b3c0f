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
