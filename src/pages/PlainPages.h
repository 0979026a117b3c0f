#pragma once

#include "pages/common/CTabPage.h"
#include "resources/AdvancedControlResources.h"

/// A page that has its tab, place and size, but no controls yet.
template <int templateNumber>
class PlainPage final : public CTabPage {
 public:
  explicit PlainPage(CWnd* parent) : CTabPage(templateNumber, parent) {}
};

using CMainTabDlg = PlainPage<TemplateId::Main>;
using CMain2TabDlg = PlainPage<TemplateId::Main2>;
using CPicture1TabDlg = PlainPage<TemplateId::Picture1>;
using CPicture12TabDlg = PlainPage<TemplateId::Picture12>;
using CPicture2TabDlg = PlainPage<TemplateId::Picture2>;
using CPicture22TabDlg = PlainPage<TemplateId::Picture22>;
using CInputTabDlg = PlainPage<TemplateId::Input>;
using CInput2TabDlg = PlainPage<TemplateId::Input2>;
using CAutoTabDlg = PlainPage<TemplateId::Auto>;
using CAuto2TabDlg = PlainPage<TemplateId::Auto2>;
using COptionTabDlg = PlainPage<TemplateId::Option>;
using COption2TabDlg = PlainPage<TemplateId::Option2>;
using CScreenTabDlg = PlainPage<TemplateId::Screen>;
using COtherTabDlg = PlainPage<TemplateId::Other>;
using CImageTabDlg = PlainPage<TemplateId::Image>;
using CImage4TabDlg = PlainPage<TemplateId::Image4>;
using CVideoTabDlg = PlainPage<TemplateId::Video>;
using CInput4TabDlg = PlainPage<TemplateId::Input4>;
using CScreen4TabDlg = PlainPage<TemplateId::Screen4>;
using CSetup4TabDlg = PlainPage<TemplateId::Setup4>;
using COption4TabDlg = PlainPage<TemplateId::Option4>;
using COther4TabDlg = PlainPage<TemplateId::Other4>;
using CPicTabDlg = PlainPage<TemplateId::Pic>;
using CSetupTabDlg = PlainPage<TemplateId::Setup>;
using CInput3TabDlg = PlainPage<TemplateId::Input3>;
using COption3TabDlg = PlainPage<TemplateId::Option3>;
