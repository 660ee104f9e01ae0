#include "tree/figures.h"

#include <QDataStream>
#include <QFile>

namespace tree {

namespace {

/// The last byte is the version of the format.
constexpr quint32 mark = 0x7a6e7402;
} // namespace

static QDataStream& operator<<(QDataStream& stream, const Hop& hop)
{
    return stream << hop.segment << hop.x << hop.radius;
}

static QDataStream& operator>>(QDataStream& stream, Hop& hop)
{
    return stream >> hop.segment >> hop.x >> hop.radius;
}

static QDataStream& operator<<(QDataStream& stream, const Net& net)
{
    return stream << net.source;
}

static QDataStream& operator>>(QDataStream& stream, Net& net)
{
    return stream >> net.source;
}

static QDataStream& operator<<(QDataStream& stream, const Wire& wire)
{
    return stream << wire.net << wire.before << wire.to << wire.points << wire.hops << wire.width << wire.dot
                  << wire.ends << wire.behind;
}

static QDataStream& operator>>(QDataStream& stream, Wire& wire)
{
    return stream >> wire.net >> wire.before >> wire.to >> wire.points >> wire.hops >> wire.width >>
           wire.dot >> wire.ends >> wire.behind;
}

static QDataStream& operator<<(QDataStream& stream, const Figure& figure)
{
    return stream << figure.shape << figure.name << figure.outline << figure.open << figure.lines
                  << figure.text << figure.inputs << figure.net;
}

static QDataStream& operator>>(QDataStream& stream, Figure& figure)
{
    return stream >> figure.shape >> figure.name >> figure.outline >> figure.open >> figure.lines >>
           figure.text >> figure.inputs >> figure.net;
}

static QDataStream& operator<<(QDataStream& stream, const Caption& caption)
{
    return stream << caption.rect << caption.text << caption.style;
}

static QDataStream& operator>>(QDataStream& stream, Caption& caption)
{
    return stream >> caption.rect >> caption.text >> caption.style;
}

QDataStream& operator<<(QDataStream& stream, const Picture& picture)
{
    stream.setVersion(QDataStream::Qt_5_15);
    return stream << mark << picture.size << picture.nets << picture.below << picture.wires << picture.above
                  << picture.captions;
}

QDataStream& operator>>(QDataStream& stream, Picture& picture)
{
    stream.setVersion(QDataStream::Qt_5_15);
    quint32 found = 0;
    Picture read;
    stream >> found;
    if (found == mark)
        stream >> read.size >> read.nets >> read.below >> read.wires >> read.above >> read.captions;
    else
        stream.setStatus(QDataStream::ReadCorruptData);
    picture = stream.status() == QDataStream::Ok ? read : Picture();
    return stream;
}

Picture readPicture(const QString& path)
{
    Picture picture;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        QDataStream stream(&file);
        stream >> picture;
    }
    return picture;
}

} // namespace tree
