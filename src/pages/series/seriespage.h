#pragma once

#include "pages/description/pagedescription.h"

/// The description of the page's series, made at its first page and kept: pages and blocks refer to it.
template <class Page>
const PageDescription& descriptionOf()
{
    static const PageDescription page = complete(Page::describe());
    return page;
}
