#include "resources/AdvancedControlResources.h"
#include "resources/Templates.h"

const DialogTemplate kPicTemplate{
    .number = TemplateId::Pic, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kPicture1Template{
    .number = TemplateId::Picture1, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kPicture12Template{
    .number = TemplateId::Picture12, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kPicture2Template{
    .number = TemplateId::Picture2, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kPicture22Template{
    .number = TemplateId::Picture22, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kImageTemplate{
    .number = TemplateId::Image, .width = kPageWidth, .height = kPageHeight};

const DialogTemplate kImage4Template{
    .number = TemplateId::Image4, .width = kPageWidth, .height = kPageHeight};
