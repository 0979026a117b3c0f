#pragma once

#include <QWidget>

/// Any window or control.
using CWnd = QWidget;
