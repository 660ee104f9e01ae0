#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "treepainter/pagelayout.h"
#include "treepainter/picture.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// The pictures that the program carries, held against the pages that stand on them.
class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void fitTheirPages_data();
    void fitTheirPages();
    void refusedTree();
};

Q_DECLARE_METATYPE(ZN64MCUSERIALS)

namespace {

/// The first pixel in the rectangle that has another colour; an empty text if there is none.
QString otherPixel(const QImage& picture, const QRectF& rect, QRgb color)
{
    const QRect pixels = rect.toAlignedRect() & picture.rect();
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (picture.pixel(x, y) != color)
                return QStringLiteral("pixel %1, %2").arg(x).arg(y);
        }
    }
    return {};
}

} // namespace

void TestPictures::fitTheirPages_data()
{
    QTest::addColumn<ZN64MCUSERIALS>("series");
    for (const SeriesTraits& traits : seriesList()) {
        if (hasSeriesPage(traits.series))
            QTest::newRow(traits.word) << traits.series;
    }
}

void TestPictures::fitTheirPages()
{
    QFETCH(ZN64MCUSERIALS, series);
    const std::unique_ptr<ClockTreePage> page(createSeriesPage(series, nullptr));
    page->show();
    const PageDescription& description = page->description();
    const QImage picture(QLatin1String(":/image/") + QLatin1String(description.picture));
    QCOMPARE(picture.size(), description.pictureSize);
    QCOMPARE(picture.depth(), 8);

    const PageLayout layout = layoutOf(*page);
    QVERIFY(!layout.controls.empty());
    for (const PlacedControl& control : layout.controls) {
        const bool radio = control.kind == ControlKind::Radio;
        const QString other = otherPixel(picture, control.rect, radio ? muxGround : qRgb(255, 255, 255));
        QVERIFY2(other.isEmpty(), qPrintable(control.name + QLatin1String(": ") + other));
    }
}

void TestPictures::refusedTree()
{
    const QTemporaryDir folder;
    QFile tree(folder.filePath(QStringLiteral("G110.tree")));
    QVERIFY(tree.open(QIODevice::WriteOnly));
    tree.write("wire m_lick_lineEdit.right x=200 y=100\nwire m_lost_lineEdit.right x=200\n");
    tree.close();
    const QString bitmap = folder.filePath(QStringLiteral("G110.bmp"));
    QProcess painter;
    painter.start(QStringLiteral(TREEPAINTER), {QStringLiteral("G110"), tree.fileName(), bitmap});
    QVERIFY(painter.waitForFinished(60000));
    QCOMPARE(painter.exitCode(), 1);
    const QString told = QString::fromUtf8(painter.readAllStandardError());
    QVERIFY2(told.contains(QStringLiteral("G110.tree:2: there is no control or figure m_lost_lineEdit\n")),
             qPrintable(told));
    QVERIFY2(told.contains(QStringLiteral("G110.tree: no wire ends at m_toi2s_lineEdit\n")),
             qPrintable(told));
    QVERIFY(!QFile::exists(bitmap));
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
