#include "resources/AdvancedControlResources.h"
#include "resources/Templates.h"

const DialogTemplate kInputTemplate{
    .number = TemplateId::Input, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kInput2Template{
    .number = TemplateId::Input2, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kInput3Template{
    .number = TemplateId::Input3, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kInput4Template{
    .number = TemplateId::Input4, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kVideoTemplate{
    .number = TemplateId::Video, .width = kPageWidth, .height = kPageHeight};
