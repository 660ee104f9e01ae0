#pragma once

#include "treepainter/pagelayout.h"

/// A page of 400 by 300 pixels: an oscillator, a multiplexer's two radio buttons, an output, and a label that
/// shows a value later.
inline PageLayout samplePage()
{
    PageLayout page{QSize(400, 300), {}};
    const auto add = [&page](const char* name, ControlKind kind, const QRectF& rect) -> PlacedControl& {
        page.controls.push_back({QString::fromLatin1(name), kind, rect});
        return page.controls.back();
    };
    add("osc", ControlKind::Field, {20, 40, 60, 30});
    add("oscName", ControlKind::Label, {20, 20, 40, 15});
    add("a", ControlKind::Radio, {200, 50, 12, 12});
    add("b", ControlKind::Radio, {200, 100, 12, 12});
    add("out", ControlKind::Field, {300, 70, 60, 25}).output = true;
    add("value", ControlKind::Label, {250, 250, 9, 15}).empty = true;
    return page;
}

/// A tree of that page with nothing to mend.
inline QString sampleTree()
{
    return QStringLiteral("mux sel: right a b\n"
                          "wire main: osc.right a.in\n"
                          "wire main: main@x=120 y=b b.in\n"
                          "wire sel.nose out.left\n");
}
