#include "resources/AdvancedControlResources.h"
#include "resources/Templates.h"

const DialogTemplate kSetupTemplate{
    .number = TemplateId::Setup, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kSetup4Template{
    .number = TemplateId::Setup4, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kScreenTemplate{
    .number = TemplateId::Screen, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kScreen4Template{
    .number = TemplateId::Screen4, .width = kPageWidth, .height = kPageHeight};
