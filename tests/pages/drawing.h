#pragma once

#include "pagefixture.h"
#include "tree/figures.h"

/// The picture of a page read by eye: what touches what, and which number or sign stands where. Nothing is
/// asked of the signals that the painter wrote beside the figures.
class Eye
{
public:
    explicit Eye(const PageFixture& page);

    /// All fields and boxes that a wire reaches, by object name, with figures by their names.
    QStringList ends() const;
    /// The clock that comes in there, MHz, by the way that is drawn; nothing where it comes from outside or
    /// from nowhere.
    std::optional<double> into(const QString& end) const;
    /// The names on the flags at which the last way began; empty if it began at an oscillator.
    QString lastFlag() const { return m_flag; }

private:
    struct Place
    {
        QString name;
        QRectF rect;
        const QWidget* control = nullptr;
        const tree::Figure* figure = nullptr;
    };

    const Place* at(const QPointF& point) const;
    std::optional<double> along(const tree::Wire& wire) const;
    std::optional<double> outOf(const Place& place) const;
    std::optional<double> reaching(const QRectF& rect) const;
    std::optional<double> named(const QString& flag, const QString& subject) const;

    const PageFixture& m_page;
    tree::Picture m_picture;
    std::vector<Place> m_places;
    mutable QString m_flag;
    mutable int m_depth = 0;
};
