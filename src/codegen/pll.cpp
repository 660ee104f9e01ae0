#include "codegen/codetraits.h"
#include "codegen/section.h"
#include "codegen/usbroute.h"
#include "model/seriestraits.h"

#include <QStringList>

bool ZN64ConfigCLK::GenerateCode_pll(QString& text) const
{
    // A miss in one of the three leaves the template's own call in place and does not end the run.
    return resolveSection(text, "enable pll", pll_isEnable(), [this](QString& body) {
        GenerateCode_pll_normal(body);
        GenerateCode_pll_flexible(body);
        GenerateCode_plludiv(body);
        return true;
    });
}

bool ZN64ConfigCLK::GenerateCode_pll_normal(QString& text) const
{
    const CodeTraits& code = codeTraits(m_MCUType);
    const QString sourceAndMultiplier =
        GetOutPutString_OscInitType_PLLRC() + QStringLiteral(", ") + GetOutPutString_OscInitType_PLLMULT();
    if (code.threeArgumentPll)
        return rewriteCall(text, {"crm_pll_config", R"(\w+, \s*\w+, \s*\w+)"},
                           sourceAndMultiplier + QStringLiteral(", ") +
                               GetOutPutString_OscInitType_PLLOutputRange());
    if (!code.normalPllSection)
        return true;
    return resolveSection(text, "pll normal", m_ConfigMode == PLLMODE_NORMAL, [&](QString& body) {
        return rewriteCall(body, {"crm_pll_config", R"(\w+, \s*\w+)"}, sourceAndMultiplier);
    });
}

bool ZN64ConfigCLK::GenerateCode_pll_flexible(QString& text) const
{
    const CodeTraits& code = codeTraits(m_MCUType);
    if (code.threeArgumentPll)
        return true;
    const char* const arguments = R"(\w+, \s*\d+, \s*\d+,\s*\w+)";
    const QString values =
        QStringList{GetOutPutString_OscInitType_PLLRC(), GetOutPutString_OscInitType_PLLNS(),
                    GetOutPutString_OscInitType_PLLMS(),
                    traits().pll_fp_output ? GetOutPutString_OscInitType_PLLFP()
                                           : GetOutPutString_OscInitType_PLLFR()}
            .join(QStringLiteral(", "));
    if (!code.flexiblePllSection)
        return rewriteCall(text, {"crm_pll_config", arguments}, values);
    return resolveSection(text, "pll flexible", m_ConfigMode == PLLMODE_FLEXIBLE, [&](QString& body) {
        return rewriteCall(body, {"crm_pll_config2", arguments}, values);
    });
}

bool ZN64ConfigCLK::GenerateCode_plludiv(QString& text) const
{
    if (!traits().pll_fp_output)
        return true;
    const CallPattern divider{"crm_pllu_div_set", R"(\w+)"};
    // The CAN switches are not looked at here, unlike where pllu is switched on.
    const bool canOnPllu =
        codeTraits(m_MCUType).canFromPllu &&
        (m_can1_Clock_Source == CAN_CLOCK_SOURCE_PLL || m_can2_Clock_Source == CAN_CLOCK_SOURCE_PLL ||
         m_can3_Clock_Source == CAN_CLOCK_SOURCE_PLL);
    if (usbRoutedFromPll(*this) || canOnPllu)
        return rewriteCall(text, divider, GetOutPutString_OscInitType_PLLFU());
    return hasCall(text, divider);
}
