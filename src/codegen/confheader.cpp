#include "codegen/codetraits.h"
#include "codegen/hertz.h"
#include "codegen/section.h"

bool ZN64ConfigCLK::GenerateCode_hextdefine(QString& text) const
{
    const int defaultHertz = codeTraits(m_MCUType).hextDefaultMHz * 1000000;
    const QString pattern =
        QStringLiteral(R"((#define\s*HEXT_VALUE\s*)(\(\(uint32_t\)%1\)))").arg(defaultHertz);
    return replacePattern(text, pattern,
                          QStringLiteral("\\1((uint32_t)%1)").arg(crystalHertz(m_hext_Input_Value)));
}
