#include "resources/AdvancedControlResources.h"
#include "resources/Templates.h"

const DialogTemplate kMainTemplate{
    .number = TemplateId::Main, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kMain2Template{
    .number = TemplateId::Main2, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kAutoTemplate{
    .number = TemplateId::Auto, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kAuto2Template{
    .number = TemplateId::Auto2, .width = kPageWidth, .height = kPageHeight};
