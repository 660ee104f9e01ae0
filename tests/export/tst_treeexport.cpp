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

/// What stands on the page, without the blanks.
QStringList textsOn(const PageFixture& page)
{
    QStringList texts;
    for (const QWidget* control : page.controls())
        if (control->isVisible() && !control->isWindow())
            texts += control->property(control->inherits("QComboBox") ? "currentText" : "text").toString();
    for (const tree::Caption& caption : page.page->treeItem().figures().captions)
        texts += caption.text;
    return texts.replaceInStrings(" "_s, QString());
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
        // Red and grey, a text that is typed only; the other mode of a PLL; a page of its own.
        fieldRows({"G120 | tousbswitch=enable hext_lineEdit=12 sclk_lineEdit=160 hext_lineEdit~13",
                   "G142 | pllmode=flexible sclkselect_hick clockoutpin=PA8 clockout_plldiv2", "G190 |"});
    }
    void filesShowThePage()
    {
        QFETCH(QStringList, fields);
        const PageFixture page(fields[0]);
        page.take(fields[1]);
        page.page->setFocus();
        const QSize size = page.page->description().pictureSize;
        page.page->resize(size + QSize(20, 20));
        QCoreApplication::processEvents();
        const QPoint corner = page.page->view()->mapFromScene(QPointF());
        const QImage grab = page.viewport()->grab(QRect(corner, size)).toImage();
        for (const QString& suffix : {"png"_s, "svg"_s, "pdf"_s}) {
            const QByteArray file = treeexport::file(*page.page, suffix, "tree"_s);
            const qreal unitsPerPixel = suffix == u"png" ? 2 : suffix == u"pdf" ? 72.0 / 96 : 1;
            QCOMPARE(sizeOf(suffix, file), (QSizeF(size) * unitsPerPixel).toSize());
            QVERIFY(!file.contains("<image") && !file.contains("/Subtype /Image"));
            const QImage picture = shown(suffix, file, size);
            const auto looksLikeThePage = [&](const QRect& area, int limit) {
                return difference(meanOf(picture, area), meanOf(grab, area)) < limit;
            };
            for (const QWidget* control : page.controls()) {
                const auto* proxy = ZN64MCUPLL::proxyOf(control);
                if (control->isVisible() && !control->isWindow())
                    QVERIFY2(looksLikeThePage(proxy->sceneBoundingRect().toRect(), 14),
                             qPrintable(suffix + u' ' + control->objectName()));
            }
            constexpr int step = 40;
            for (int x = 0; x + step < size.width(); x += step)
                for (int y = 0; y + step < size.height(); y += step)
                    QVERIFY2(looksLikeThePage(QRect(x, y, step, step), 10),
                             qPrintable("%1 at %2, %3"_s.arg(suffix).arg(x).arg(y)));
            // Mean colours are too coarse to tell red digits from black ones.
            const QString texts = textsIn(suffix, file);
            for (const QString& text : suffix == u"png" ? QStringList() : textsOn(page))
                QVERIFY2(texts.contains(text), qPrintable(suffix + u' ' + text));
            for (const auto* edit :
                 suffix == u"svg" ? page.page->findChildren<QLineEdit*>() : QList<QLineEdit*>()) {
                const QString text = edit->palette().color(QPalette::Text).name() + u':' + edit->text();
                QVERIFY2(!edit->isVisible() || texts.contains(QString(text).remove(u' ')), qPrintable(text));
            }
        }
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
        for (const char* name :
             {"hext_lineEdit", "towdt_lineEdit", "ahbdiv_ComboBox", "pllrcs_hext_RadioButton"}) {
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

    /// Without the blanks; in an SVG file behind their colours.
    static QString textsIn(const QString& suffix, const QByteArray& file)
    {
        QString texts;
        if (suffix == u"pdf")
            texts = QString::fromUtf8(poppler("pdftotext"_s, {"-raw"_s, "-"_s, "-"_s}, file));
        const QString source = QString::fromUtf8(file);
        const QRegularExpression element("<text fill=\"([^\"]*)\"[^>]*>([^<]*)<"_s);
        for (auto text = element.globalMatch(source); text.hasNext();)
            texts += text.next().capturedTexts().mid(1).join(u':') + u'\n';
        return texts.remove(u' ');
    }
};

QTEST_MAIN(TestTreeExport)
#include "tst_treeexport.moc"
