#include "pages/series/ZN64G114PLL.h"

#include "pages/series/ZN64G110RPLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G114PLL::describe()
{
    PageDescription page = ZN64G110RPLL::describe();
    page.series = ZN64G114;
    page.column = {
        {"G114", 1180}
    };
    page.outputs = "i2s systick sido dma xmc emac gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb2Timers.down = -114;
    // Its picture has been drawn a little otherwise.
    page.move({
        {"m_tortc_ComboBox",          305,  143},
        {"m_tortc_lineEdit",          415,  144},
        {"m_tortc_Label",             500,  148},
        {"m_lext_lineEdit",           65,   139},
        {"m_tosystick_div",           1092, 111},
        {"m_pllrcs_hext_RadioButton", 471,  327},
        {"m_pllrcs_hick_RadioButton", 471,  380},
    });
    return page;
}

ZN64G114PLL::ZN64G114PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G114PLL>(), parent)
{
    build();
}
