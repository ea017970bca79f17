#include "table/ScrollBarStyle.h"

namespace
{

// Known to users of the instrument, down to the single colon before "left-arrow", which leaves that
// arrow to the style.
const char kHorizontal[] = "QScrollBar:horizontal {"
                           " border: 1px solid #BEBEBE;"
                           " background: #FFFFFF;"
                           " height: 30px;"
                           " margin: 0px 32px 0px 31px; }"
                           "QScrollBar::handle:horizontal {"
                           " background: #c5e4f5;"
                           " min-width: 40px; }"
                           "QScrollBar::add-line:horizontal {"
                           " border: 1px solid #BEBEBE;"
                           " background: #F7F7F7;"
                           " width: 31px;"
                           " subcontrol-position: right;"
                           " subcontrol-origin: margin; }"
                           "QScrollBar::sub-line:horizontal {"
                           " border: 1px solid #BEBEBE;"
                           " background: #F7F7F7;"
                           " width: 30px;"
                           " subcontrol-position: left;"
                           " subcontrol-origin: margin; }"
                           "QScrollBar::add-line:horizontal:pressed,"
                           " QScrollBar::sub-line:horizontal:pressed {"
                           " background: #D4DFEC; }"
                           "QScrollBar:left-arrow:horizontal, QScrollBar::right-arrow:horizontal {"
                           " border: 2px solid grey;"
                           " width: 3px;"
                           " height: 3px;"
                           " background: white; }";

const char kVertical[] = "QScrollBar:vertical {"
                         " border: 1px solid #BEBEBE;"
                         " background: #FFFFFF;"
                         " width: 30px;"
                         " margin: 40px 0px 33px 0px; }"
                         "QScrollBar::handle:vertical {"
                         " background: #c5e4f5;"
                         " min-height: 40px; }"
                         "QScrollBar::add-line:vertical {"
                         " border: 1px solid #BEBEBE;"
                         " background: #F7F7F7;"
                         " height: 32px;"
                         " subcontrol-position: bottom;"
                         " subcontrol-origin: margin; }"
                         "QScrollBar::sub-line:vertical {"
                         " border: 1px solid #BEBEBE;"
                         " background: #F7F7F7;"
                         " height: 39px;"
                         " subcontrol-position: top;"
                         " subcontrol-origin: margin; }"
                         "QScrollBar::add-line:vertical:pressed,"
                         " QScrollBar::sub-line:vertical:pressed {"
                         " background: #D4DFEC; }"
                         "QScrollBar::up-arrow:vertical, QScrollBar::down-arrow:vertical {"
                         " border: 2px solid grey;"
                         " width: 3px;"
                         " height: 3px;"
                         " background: white; }";

} // namespace

QString ScrollBarStyle::horizontal()
{
    return QLatin1String(kHorizontal);
}

QString ScrollBarStyle::vertical()
{
    return QLatin1String(kVertical);
}
