#include "viewer/ListScrollBar.h"

#include "viewer/ThemeColors.h"

namespace
{

const char kStyleSheet[]
    = "QScrollBar:vertical { background: %surface%; width: 12px; border: none; margin: 0 }"
      "QScrollBar::handle:vertical { background: %handle%; border-radius: 4px; margin: 2px;"
      " min-height: 44px }"
      "QScrollBar::add-line, QScrollBar::sub-line { height: 0 }"
      "QScrollBar::add-page, QScrollBar::sub-page { background: none }";

} // namespace

QString ListScrollBar::styleSheet(bool isDark)
{
    return ThemeColors::filled(kStyleSheet, isDark);
}
