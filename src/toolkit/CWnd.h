#pragma once

#include <QWidget>

/// Any window or control, as the dialogs' public interfaces name it.
using CWnd = QWidget;
