#pragma once

#include <QString>

/// Bounds of what the XML parser is let near. A design file has some 70 tags, none of them with an attribute.
namespace PlainXml {
/// Tags, comments and the like. Every look-up of a setting walks past all of them.
constexpr int MaxTags = 10000;
/// Attributes of one tag: the parser compares each with all others.
constexpr int MaxAttributes = 8;
} // namespace PlainXml

/// Whether a parser may be given \a text: it has no DOCTYPE and keeps to the bounds. Walks over the text once
/// and says nothing on whether it is well formed, but up to its first fault it is cut into tags as a parser
/// cuts it.
bool isPlainXml(const QString& text);
