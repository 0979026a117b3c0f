#pragma once

#include "pages/common/CTabPage.h"
#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"

// Pages that are nothing but their table of rows.

using CMainTabDlg = TablePage<TemplateId::Main, kMainRows>;
using CMain2TabDlg = TablePage<TemplateId::Main2, kMain2Rows>;
using CPicture1TabDlg = TablePage<TemplateId::Picture1, kPicture1Rows>;
using CPicture12TabDlg = TablePage<TemplateId::Picture12, kPicture12Rows>;
using CPicture2TabDlg = TablePage<TemplateId::Picture2, kPicture2Rows>;
using CPicture22TabDlg = TablePage<TemplateId::Picture22, kPicture22Rows>;
using CInput2TabDlg = TablePage<TemplateId::Input2, kInput2Rows>;
using CAutoTabDlg = TablePage<TemplateId::Auto, kAutoRows>;
using CAuto2TabDlg = TablePage<TemplateId::Auto2, kAuto2Rows>;
using COptionTabDlg = TablePage<TemplateId::Option, kOptionRows>;
using COption2TabDlg = TablePage<TemplateId::Option2, kOption2Rows>;
using CScreenTabDlg = TablePage<TemplateId::Screen, kScreenRows>;
using CImageTabDlg = TablePage<TemplateId::Image, kImageRows>;
using CImage4TabDlg = TablePage<TemplateId::Image4, kImage4Rows>;
using CVideoTabDlg = TablePage<TemplateId::Video, kVideoRows>;
using CInput4TabDlg = TablePage<TemplateId::Input4, kInput4Rows>;
using CScreen4TabDlg = TablePage<TemplateId::Screen4, kScreen4Rows>;
using CSetup4TabDlg = TablePage<TemplateId::Setup4, kSetup4Rows>;
using COption4TabDlg = TablePage<TemplateId::Option4, kOption4Rows>;
using CSetupTabDlg = TablePage<TemplateId::Setup, kSetupRows>;
using CInput3TabDlg = TablePage<TemplateId::Input3, kInput3Rows>;
using COption3TabDlg = TablePage<TemplateId::Option3, kOption3Rows>;
