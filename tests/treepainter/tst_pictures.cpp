#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "tree/drawing.h"
#include "treepainter/builder.h"
#include "treepainter/pagelayout.h"
#include "treepainter/picture.h"
#include "treepainter/seriestree.h"

#include <QApplication>
#include <QDir>
#include <QGraphicsPixmapItem>
#include <QGraphicsView>
#include <QPainter>
#include <QProcess>
#include <QStyleOptionGraphicsItem>
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
    void modes();
    void doubledPictures_data();
    void doubledPictures();
    void refusedTree();
    void sharpAtEveryZoom_data();
    void sharpAtEveryZoom();
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

void eachPage()
{
    QTest::addColumn<ZN64MCUSERIALS>("series");
    for (const SeriesTraits& traits : seriesList()) {
        QTest::newRow(traits.word) << traits.series;
    }
}

/// The fields of a page in front of wires.
QStringList covers(const PageDescription& description, PageLayout& page)
{
    Problems problems;
    QStringList fields;
    const std::vector<Statement> tree = treeOf(description, QStringLiteral(PAGES), problems);
    for (const Wire& wire : buildDrawing(tree, page, problems).wires)
        fields += wire.behind;
    return fields;
}

} // namespace

void TestPictures::fitTheirPages_data()
{
    eachPage();
}

void TestPictures::fitTheirPages()
{
    QFETCH(ZN64MCUSERIALS, series);
    const std::unique_ptr<ClockTreePage> page(createSeriesPage(series, nullptr));
    page->show();
    const PageDescription& description = page->description();
    const QImage picture(QLatin1String(":/image/") + description.pictureName());
    QCOMPARE(picture.size(), description.pictureSize);
    QCOMPARE(picture.depth(), 8);

    const std::vector<PageLayout> states = layoutsOf(*page);
    PageLayout all = together(states);
    const QStringList inFront = covers(description, all);
    for (const PageLayout& state : states) {
        QVERIFY(!state.controls.empty());
        for (const PlacedControl& control : state.controls) {
            if (inFront.contains(control.name))
                continue;
            const bool radio = control.kind == ControlKind::Radio;
            // Behind the last letter of a label there is room to spare.
            const QRectF rect =
                control.kind == ControlKind::Label ? control.rect.adjusted(0, 0, -2, 0) : control.rect;
            const QString other = otherPixel(picture, rect, radio ? tree::muxGround : qRgb(255, 255, 255));
            QVERIFY2(other.isEmpty(), qPrintable(control.name + QLatin1String(": ") + other));
        }
    }
}

/// A mode hides the multiplier and moves the PLL's label.
void TestPictures::modes()
{
    const std::unique_ptr<ClockTreePage> page(createSeriesPage(ZN64G110, nullptr));
    QGraphicsProxyWidget* multiplier =
        ZN64MCUPLL::proxyOf(page->findChild<QWidget*>(QStringLiteral("m_pllmult_ComboBox")));
    QGraphicsProxyWidget* label =
        ZN64MCUPLL::proxyOf(page->findChild<QWidget*>(QStringLiteral("m_pllclk_Label")));
    CustomComboBox1* modes = page->NewComboBoxInScenePos(500, 600, 80, 1);
    modes->setObjectName(QStringLiteral("m_pllmode_ComboBox"));
    modes->addItems({QStringLiteral("normal"), QStringLiteral("flexible")});
    connect(modes, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [multiplier, label](int mode) {
        multiplier->setVisible(mode == 0);
        label->setX(650 + 5 * mode);
    });
    page->show();

    const std::vector<PageLayout> states = layoutsOf(*page);
    QCOMPARE(states.size(), size_t(2));
    QCOMPARE(states[1].state, QStringLiteral("flexible"));
    QVERIFY(states[0].find(QStringLiteral("m_pllmult_ComboBox")));
    QVERIFY(!states[1].find(QStringLiteral("m_pllmult_ComboBox")));
    QCOMPARE(states[1].find(QStringLiteral("m_pllclk_Label"))->rect.left(), 655.0);
    QCOMPARE(states[0].controls.size(), states[1].controls.size() + 1);
    QVERIFY(together(states).find(QStringLiteral("m_pllmult_ComboBox")));
    QCOMPARE(modes->currentIndex(), 0);
}

void TestPictures::doubledPictures_data()
{
    eachPage();
}

/// At a scale of 2 each pixel of the picture of twice the pixels is one pixel of the screen.
void TestPictures::doubledPictures()
{
    QFETCH(ZN64MCUSERIALS, series);
    const std::unique_ptr<ClockTreePage> page(createSeriesPage(series, nullptr));
    const QString name = QLatin1String(":/image/") + page->description().pictureName();
    const QPixmap picture(name.chopped(4) + QLatin1String("@2x.bmp"));
    QCOMPARE(qApp->devicePixelRatio(), 2.0);
    QCOMPARE(QImage(name.chopped(4) + QLatin1String("@2x.bmp")).depth(), 8);

    QGraphicsScene scene;
    const QGraphicsPixmapItem* item = scene.addPixmap(picture);
    QCOMPARE(item->boundingRect().size().toSize(), page->description().pictureSize);
    QGraphicsView view(&scene);
    view.setFrameShape(QFrame::NoFrame);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setFixedSize(page->description().pictureSize);
    view.show();
    const QImage seen = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QImage meant = picture.toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(seen.size(), meant.size());
    QVERIFY(seen == meant);
}

/// A tree of the program's own parts with one line more.
void TestPictures::refusedTree()
{
    const QTemporaryDir folder;
    QDir().mkpath(folder.filePath(QStringLiteral("layout")));
    for (const QFileInfo& part :
         QDir(QStringLiteral(PAGES "/layout")).entryInfoList({QStringLiteral("*.tree")}))
        QVERIFY(QFile::copy(part.filePath(), folder.filePath(QStringLiteral("layout/") + part.fileName())));
    QFile usb(folder.filePath(QStringLiteral("layout/usb.tree")));
    QVERIFY(usb.open(QIODevice::Append));
    usb.write("wire m_lost_lineEdit.right x=200\n");
    usb.close();
    QVERIFY(QFile::remove(folder.filePath(QStringLiteral("layout/systick.tree"))));
    const QString bitmap = folder.filePath(QStringLiteral("G110.bmp"));
    QProcess painter;
    painter.start(QStringLiteral(TREEPAINTER), {QStringLiteral("G110"), folder.path(), bitmap});
    QVERIFY(painter.waitForFinished(60000));
    QCOMPARE(painter.exitCode(), 1);
    const QString told = QString::fromUtf8(painter.readAllStandardError());
    for (const char* fault :
         {"usb.tree:4: there is no control or figure m_lost_lineEdit\n",
          "systick.tree: No such file or directory\n", "G110: no wire ends at m_tosystick_lineEdit\n"})
        QVERIFY2(told.contains(QLatin1String(fault)), qPrintable(told));
    QVERIFY(!QFile::exists(bitmap));
}

void TestPictures::sharpAtEveryZoom_data()
{
    QTest::addColumn<double>("zoom");
    for (const double zoom : {0.5, 0.97, 1.0, 1.25, 1.5, 2.37, 5.0})
        QTest::addRow("%g", zoom) << zoom;
}

/// Across every long straight piece, where no dot stands, of a wire there are whole pixels of ink on white,
/// and of no shade.
void TestPictures::sharpAtEveryZoom()
{
    QFETCH(double, zoom);
    const QScopedPointer<ClockTreePage> page(createSeriesPage(ZN64G110, nullptr));
    const tree::Picture figures = tree::readPicture(QStringLiteral(":/image/G110PLL.figures"));
    QImage seen((QSizeF(figures.size) * zoom).toSize(), QImage::Format_RGB32);
    seen.fill(Qt::white);
    QPainter painter(&seen);
    painter.scale(zoom, zoom);
    for (QGraphicsItem* item : page->view()->scene()->items())
        if (auto* background = qgraphicsitem_cast<QGraphicsPixmapItem*>(item)) {
            QStyleOptionGraphicsItem option;
            option.exposedRect = background->boundingRect();
            background->paint(&painter, &option, nullptr);
        }
    painter.end();
    if (qEnvironmentVariableIsSet("CLOCKWRIGHT_PICTURES"))
        QVERIFY(seen.save(qEnvironmentVariable("CLOCKWRIGHT_PICTURES") + QString::number(zoom) +
                          QStringLiteral(".png")));

    constexpr QRgb used = qRgb(0, 32, 82);
    constexpr QRgb idle = qRgb(200, 209, 220);
    int pieces = 0;
    for (const tree::Wire& wire : figures.wires)
        for (int i = 1; i < wire.points.size(); ++i) {
            const QLineF piece(wire.points[i - 1], wire.points[i]);
            if (piece.length() < 60 || piece.dy() != 0 || !wire.hops.isEmpty())
                continue;
            const QPoint middle = (piece.pointAt(0.31) * zoom).toPoint();
            const int reach = qMax(3, qRound(2 * wire.width * zoom));
            int inked = 0;
            for (int y = middle.y() - reach; y <= middle.y() + reach; ++y) {
                const QRgb color = seen.pixel(middle.x(), y);
                inked += color == used || color == idle;
                QVERIFY2(color == used || color == idle || color == qRgb(255, 255, 255), qPrintable(wire.to));
            }
            QCOMPARE(inked, qMax(1, qRound(wire.width * zoom)));
            ++pieces;
        }
    QVERIFY(pieces > 10);
}

int main(int argc, char* argv[])
{
    // A screen of twice the pixels, which shows both pictures at their logical size.
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication application(argc, argv);
    TestPictures test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pictures.moc"
