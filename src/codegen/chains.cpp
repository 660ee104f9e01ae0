#include "codegen/codetraits.h"

#include <algorithm>

namespace {
bool runChain(const CodeChain& chain, const ZN64ConfigCLK& clock, QString& text)
{
    return std::all_of(chain.begin(), chain.end(),
                       [&](CodeFragment fragment) { return (clock.*fragment)(text); });
}
} // namespace

bool ZN64ConfigCLK::GenerateClockSource(QString& text) const
{
    return runChain(codeTraits(m_MCUType).clockChain, *this, text);
}

bool ZN64ConfigCLK::GenerateMainSource(QString& text) const
{
    return runChain(codeTraits(m_MCUType).mainChain, *this, text);
}
