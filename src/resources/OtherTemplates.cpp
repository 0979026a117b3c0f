#include "resources/AdvancedControlResources.h"
#include "resources/Templates.h"

const DialogTemplate kOptionTemplate{
    .number = TemplateId::Option, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kOption2Template{
    .number = TemplateId::Option2, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kOption3Template{
    .number = TemplateId::Option3, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kOption4Template{
    .number = TemplateId::Option4, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kOtherTemplate{
    .number = TemplateId::Other, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kOther4Template{
    .number = TemplateId::Other4, .width = kPageWidth, .height = kPageHeight};
