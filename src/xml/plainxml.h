#pragma once

#include <QString>

/// Bounds of what the XML parser is let near. A design file has some 70 tags on two levels and no attribute.
namespace PlainXml {
/// Tags, comments and the like. Every look-up of a setting walks past all of them.
constexpr int MaxTags = 100000;
/// Attributes of one tag: the parser compares each with all others.
constexpr int MaxAttributes = 64;
/// Elements open at once, the root among them.
constexpr int MaxDepth = 64;
} // namespace PlainXml

/// Whether a parser may be given \a text: it keeps to the bounds and has no DOCTYPE that says more than the
/// root's name. Walks over the text once and says nothing on whether it is well formed, but up to its first
/// fault it is cut into tags as a parser cuts it.
bool isPlainXml(const QString& text);
