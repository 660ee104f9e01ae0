#include "export/treeexport.h"
#include "pages/pagefixture.h"
#include "testdata.h"
#include "widgets/look.h"

#include <QPainter>
#include <QProcess>
#include <QSvgRenderer>

namespace {

/// What a poppler tool makes of the file on its standard input.
QByteArray poppler(const QString& tool, const QStringList& arguments, const QByteArray& file)
{
    QProcess process;
    process.start(tool, arguments);
    process.write(file);
    process.closeWriteChannel();
    return process.waitForFinished() && process.exitCode() == 0 ? process.readAllStandardOutput()
                                                                : QByteArray();
}

/// The file as its readers show it, in the size of the picture.
QImage shown(const QString& suffix, const QByteArray& file, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    if (suffix == u"svg") {
        QPainter painter(&image);
        QSvgRenderer(file).render(&painter);
    } else if (suffix == u"pdf") {
        image.loadFromData(poppler("pdftoppm"_s, {"-r"_s, "96"_s, "-png"_s}, file));
        // A page is whole points large.
        image = image.copy(QRect(QPoint(), size));
    } else {
        image.loadFromData(file);
    }
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QColor meanOf(const QImage& image, const QRect& area)
{
    return image.copy(area).scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

int difference(const QColor& one, const QColor& other)
{
    return qMax(qAbs(one.red() - other.red()),
                qMax(qAbs(one.green() - other.green()), qAbs(one.blue() - other.blue())));
}

QString textOf(const QWidget* control)
{
    const auto* combo = qobject_cast<const QComboBox*>(control);
    return (combo ? combo->currentText() : control->property("text").toString()).remove(u' ');
}

} // namespace

/// The picture of a page for documents, in each format.
class TestTreeExport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { look::apply(); }

    void filesShowThePage_data()
    {
        // Red and grey; a text that is typed only, and one that does not fit; the other mode of a PLL.
        fieldRows({"png | G120 | tousbswitch=enable hext_lineEdit=12 sclk_lineEdit=160 hext_lineEdit~13",
                   "svg | G120 | tousbswitch=enable hext_lineEdit=12 sclk_lineEdit=160 hext_lineEdit~13",
                   "pdf | G120 | tousbswitch=enable hext_lineEdit=12 sclk_lineEdit=160 hext_lineEdit~13",
                   "svg | G142 | pllmode=flexible sclkselect_hick clockoutpin=PA8 clockout_plldiv2",
                   "pdf | G142 | pllmode=flexible", "svg | G190 |", "pdf | G190 |"});
    }
    void filesShowThePage()
    {
        QFETCH(QStringList, fields);
        const QString suffix = fields[0];
        const PageFixture page(fields[1]);
        page.take(fields[2]);
        page.page->setFocus();
        const QSize size = page.page->description().pictureSize;
        page.page->resize(size + QSize(20, 20));
        QCoreApplication::processEvents();
        const QByteArray file = treeexport::file(*page.page, suffix, "tree"_s);
        const QImage picture = shown(suffix, file, size);
        QGraphicsView* view = page.page->view();
        const QRect all = view->mapFromScene(QRectF(QPointF(), size)).boundingRect();
        const QImage grab = page.viewport()->grab(QRect(all.topLeft(), size)).toImage();

        const qreal unitsPerPixel = suffix == u"png" ? 2 : suffix == u"pdf" ? 72.0 / 96 : 1;
        QCOMPARE(sizeOf(suffix, file), (QSizeF(size) * unitsPerPixel).toSize());
        const QString texts = textsOf(suffix, file);
        for (const QWidget* control : page.controls()) {
            if (!control->isVisible() || control->isWindow())
                continue;
            const QRectF place = ZN64MCUPLL::proxyOf(control)->sceneBoundingRect();
            const int off = difference(meanOf(picture, place.toRect()), meanOf(grab, place.toRect()));
            QVERIFY2(off < 14, qPrintable("%1 is off by %2"_s.arg(control->objectName()).arg(off)));
            QVERIFY2(suffix == u"png" || texts.contains(textOf(control)), qPrintable(textOf(control)));
        }
        for (const tree::Caption& caption : page.page->treeItem().figures().captions)
            QVERIFY2(suffix == u"png" || texts.contains(QString(caption.text).remove(u' ')),
                     qPrintable(caption.text));
        const int step = 40;
        for (int x = 0; x + step < size.width(); x += step)
            for (int y = 0; y + step < size.height(); y += step) {
                const QRect area(x, y, step, step);
                const int off = difference(meanOf(picture, area), meanOf(grab, area));
                QVERIFY2(off < 10, qPrintable("at %1, %2 it is off by %3"_s.arg(x).arg(y).arg(off)));
            }
        QVERIFY(!file.contains("<image") && !file.contains("/Subtype /Image"));
    }

    void onlyTheDesignShows()
    {
        const PageFixture page("G120"_s);
        const auto files = [&page] {
            return treeexport::file(*page.page, "png"_s, "tree"_s) +
                   treeexport::file(*page.page, "svg"_s, "tree"_s);
        };
        const QByteArray before = files();
        QVERIFY(before == files());
        page.page->ZoomIn();
        page.page->view()->translate(QPointF(-100, -50));
        QVERIFY(before == files());
        page.page->ZoomReset();
        page.click("toapb1peripheral_List_Button"_s);
        page.page->treeItem().mark({0, 1, 2});
        QVERIFY(before == files());
        for (const char* name : {"hext_lineEdit", "ahbdiv_ComboBox", "pllrcs_hext_RadioButton"}) {
            page.click(QLatin1String(name));
            QTest::mouseMove(page.viewport(), page.middleOf(page.find(QLatin1String(name))));
            QCoreApplication::processEvents();
            QVERIFY2(before == files(), name);
            QTest::keyClick(page.viewport(), Qt::Key_Escape);
        }
    }

private:
    /// In the units of the format.
    static QSize sizeOf(const QString& suffix, const QByteArray& file)
    {
        if (suffix == u"png")
            return QImage::fromData(file).size();
        if (suffix == u"svg")
            return QSvgRenderer(file).viewBox().size();
        const QString box =
            QString::fromLatin1(file.mid(file.indexOf("MediaBox [") + 10, 50)).section(u']', 0, 0);
        return QSizeF(box.section(u' ', 2, 2).toDouble(), box.section(u' ', 3, 3).toDouble()).toSize();
    }

    /// Without the blanks.
    static QString textsOf(const QString& suffix, const QByteArray& file)
    {
        QString texts;
        if (suffix == u"pdf")
            texts = QString::fromUtf8(poppler("pdftotext"_s, {"-raw"_s, "-"_s, "-"_s}, file));
        const QString source = QString::fromUtf8(file);
        for (auto text = QRegularExpression("<text[^>]*>([^<]*)<"_s).globalMatch(source); text.hasNext();)
            texts += text.next().captured(1) + u'\n';
        return texts.remove(u' ');
    }
};

QTEST_MAIN(TestTreeExport)
#include "tst_treeexport.moc"
