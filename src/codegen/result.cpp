#include "codegen/codetraits.h"
#include "codegen/hertz.h"
#include "codegen/section.h"
#include "model/seriestraits.h"

namespace {
QString line(const QString& text)
{
    return QStringLiteral("  *         ") + text + QLatin1Char('\n');
}

QString item(const char* name, const QString& value)
{
    return line(QStringLiteral("- ") + QString::fromLatin1(name).leftJustified(20) + QStringLiteral("= ") +
                value);
}

QString item(const char* name, qint64 value)
{
    return item(name, QString::number(value));
}

QString sourceLines(const QString& formula, const char* source)
{
    return line(QStringLiteral("system clock (sclk)   = ") + formula) +
           line(QStringLiteral("system clock source   = ") + QLatin1String(source));
}

/// "hick / 12", "hext / 2" or "hext": what goes into the PLL.
QString pllInput(const ZN64ConfigCLK& clock, int hickDivisor)
{
    if (clock.Get_PLLRC() != PLLRC_HEXT)
        return QStringLiteral("hick / %1").arg(hickDivisor);
    if (clock.hextdiv_isEnable())
        return QStringLiteral("hext / %1").arg(clock.Get_HEXT_DIV());
    return QStringLiteral("hext");
}

const char* pllSource(const ZN64ConfigCLK& clock)
{
    return clock.Get_PLLRC() != PLLRC_HEXT ? "HICK_VALUE" : "HEXT_VALUE";
}

QString normalSource(const ZN64ConfigCLK& clock)
{
    const bool undividedHick = !clock.traits().hick_8mhz && clock.Get_HICK_TO_SCLK() != HICK_TO_SCLK_DIV6;
    switch (clock.Get_SYSCLKSelect()) {
    case SYSCLK_PLL:
        return sourceLines(pllInput(clock, codeTraits(clock.series()).normalHickDivisor) +
                               QStringLiteral(" * pll_mult"),
                           pllSource(clock));
    case SYSCLK_HICK:
        return sourceLines(undividedHick ? QStringLiteral("(hick 48)") : QStringLiteral("(hick 8)"), "hick");
    default:
        return sourceLines(QStringLiteral("(hext)"), "hext");
    }
}

/// The comment has five steps and ends at 4 cycles, even where the call below it sets more wait states. The
/// two are kept apart: a comment that follows the call would change files that users have.
int flashCycles(double sysclk)
{
    int cycles = 0;
    for (double limit = 32.0; cycles < 4 && !(sysclk <= limit); limit += 32.0)
        ++cycles;
    return cycles;
}

QString normalPllLines(const ZN64ConfigCLK& clock)
{
    const CodeTraits& code = codeTraits(clock.series());
    QString lines;
    if (clock.pll_isEnable()) {
        lines += item("pll_mult", clock.Get_PLL_MUL());
        if (code.pllRangeLine)
            lines += item("pll_range", clock.Get_PLLCLKValue() > 72.0
                                           ? QStringLiteral("GT72MHZ (greater than 72 mhz)")
                                           : QStringLiteral("LE72MHZ (less than 72 mhz or equal to 72 mhz)"));
    }
    if (code.flashCycleLine)
        lines += item("flash_wtcyc", QStringLiteral("%1 cycle").arg(flashCycles(clock.Get_SYSCLKValue())));
    return lines;
}

QString flexiblePllFormula(const ZN64ConfigCLK& clock)
{
    const QString input = pllInput(clock, codeTraits(clock.series()).flexibleHickDivisor);
    const bool half = clock.traits().sysclk_half_pll && clock.Get_PLLRC() == PLLRC_HEXT;
    return QStringLiteral("(%1 * pll_ns)/(pll_ms * %2)%3")
        .arg(input, clock.traits().pll_fp_output ? QStringLiteral("pll_fp") : QStringLiteral("pll_fr"),
             half ? QStringLiteral(" / 2") : QString());
}

QString flexibleHickFormula(const ZN64ConfigCLK& clock)
{
    const int megahertz = clock.Get_HICK_TO_SCLK() != HICK_TO_SCLK_DIV6 ? 48 : 8;
    if (clock.traits().sclk_prediv)
        return QStringLiteral("(hick %1 / %2)").arg(megahertz).arg(clock.Get_SCLKHICK_DIV());
    return QStringLiteral("(hick %1)").arg(megahertz);
}

QString flexibleSource(const ZN64ConfigCLK& clock)
{
    switch (clock.Get_SYSCLKSelect()) {
    case SYSCLK_PLL:
        return sourceLines(flexiblePllFormula(clock), pllSource(clock));
    case SYSCLK_HICK:
        return sourceLines(flexibleHickFormula(clock), "hick");
    default:
        return sourceLines(codeTraits(clock.series()).hextDivInComment
                               ? QStringLiteral("(hext / %1)").arg(clock.Get_HEXT_DIV())
                               : QStringLiteral("(hext)"),
                           "hext");
    }
}

QString flexiblePllLines(const ZN64ConfigCLK& clock)
{
    if (!clock.pll_isEnable())
        return {};
    return item("pll_ns", clock.Get_PLL_NS()) + item("pll_ms", clock.Get_PLL_MS()) +
           (clock.traits().pll_fp_output ? item("pll_fp", clock.Get_PLL_FP())
                                         : item("pll_fr", clock.Get_PLL_FR()));
}

QString clockLines(const ZN64ConfigCLK& clock)
{
    QString lines;
    if (clock.hext_isEnable())
        lines += item("hext", crystalHertz(clock.Get_Hext_Input_Value()));
    return lines + item("sclk", clockHertz(clock.Get_SYSCLKValue())) + item("ahbdiv", clock.Get_AHBDIV()) +
           item("ahbclk", clockHertz(clock.Get_AHBCLKValue())) + item("apb1div", clock.Get_APB1DIV()) +
           item("apb1clk", clockHertz(clock.Get_APB1CLKValue())) + item("apb2div", clock.Get_APB2DIV()) +
           item("apb2clk", clockHertz(clock.Get_APB2CLKValue()));
}
} // namespace

bool ZN64ConfigCLK::GenerateCode_result(QString& text) const
{
    const bool flexible = m_ConfigMode == PLLMODE_FLEXIBLE;
    const QString comment = QStringLiteral("* @brief  system clock config program\n"
                                           "  * @note   the system clock is configured as follow:\n") +
                            (flexible ? flexibleSource(*this) : normalSource(*this)) + clockLines(*this) +
                            (flexible ? flexiblePllLines(*this) : normalPllLines(*this)) +
                            QStringLiteral("  * @param  none\n"
                                           "  * @retval none");
    // Greedy: runs to the last "@retval none" of the text, so this comment must be the last one of its kind.
    return replacePattern(
        text, QStringLiteral(R"(\* @brief  system clock config program(.+)\* @retval none)"), comment);
}
