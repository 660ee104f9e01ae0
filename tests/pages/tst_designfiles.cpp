#include "pagefixture.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

class TestDesignFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void startDesign_data();
    void startDesign();
    void saveTellsHowItEnded();
    void roundTrip_data() { seriesRows(); }
    void roundTrip();
    void readsLike_data();
    void readsLike();
    void hostileFileCountsAsEmpty_data();
    void hostileFileCountsAsEmpty();
    void elements_data();
    void elements();

private:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    /// Opens the text as a design; no dialog may show.
    bool open(const PageFixture& page, const QByteArray& text) const;

    QTemporaryDir m_folder;
};

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

QByteArray documentOf(const QByteArray& elements)
{
    QByteArray text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Configuration>\n";
    for (const QByteArray& element : elements.split(' ')) {
        const int equals = element.indexOf('=');
        const QByteArray name = element.left(equals);
        text += "    <" + name + '>' + element.mid(equals + 1) + "</" + name + ">\n";
    }
    return text + "</Configuration>";
}

const QByteArray g110 =
    "MCU=ZN64G110 lextbypass=0 rtcsel=0 rtcswitch=0 hext=8.000000 hextbypass=0 pllhextdiv=0 "
    "pllrcs=0 pllmult=24 sclkselect=1 ahbdiv=1 apb1div=2 apb2div=2 usbdiv=4.0 tousbswitch=1 "
    "clkout=0 clkoutpinselect=0 adcswitch=0 adcdiv=2";
const QByteArray g150 =
    "MCU=ZN64G150 lextbypass=0 rtcsel=0 rtcswitch=0 rtcdiv=2 hext=8.000000 hextbypass=0 pllrcs=0 "
    "pllms=1 pllns=144 pllfr=4 sclkselect=1 ahbdiv=1 apb1div=2 apb2div=2 usbdiv=6.0 hicktousb=0 "
    "tousbswitch=1 hicktosclk=0 clkout1=0 clkout1div1=1 clkout1div2=1 clkout1pinselect=0 "
    "clkout2=0 clkout2div1=1 clkout2div2=1 clkout2pinselect=0";

#ifdef __SANITIZE_ADDRESS__
constexpr int randomDesigns = 40; // a sanitized page is slow
#else
constexpr int randomDesigns = 200;
#endif

} // namespace

void TestDesignFiles::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(m_folder.isValid());
}

bool TestDesignFiles::open(const PageFixture& page, const QByteArray& text) const
{
    QFile file(path("design.ZNCK"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        return false;
    file.close();
    DialogAnswers answers{};
    page.page->OpenFromFile(file.fileName());
    return answers.shown().isEmpty();
}

void TestDesignFiles::startDesign_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("G110") << documentOf(g110);
    QTest::newRow("G150") << documentOf(g150);
    QTest::newRow("G152") << documentOf(QByteArray(g150).replace("G150", "G152"));
}

void TestDesignFiles::startDesign()
{
    QFETCH(QByteArray, document);
    const PageFixture page(QString::fromLatin1(QTest::currentDataTag()));
    // Used as typed, without a suffix.
    const QString file =
        m_folder.filePath(QStringLiteral("start of ") + QLatin1String(QTest::currentDataTag()));
    DialogAnswers answers{DialogAnswers::choose(file), DialogAnswers::press("Ok")};
    page.page->SaveToFile(page.series());
    QCOMPARE(answers.shown(),
             QStringList({QStringLiteral("Save"),
                          QStringLiteral("information | Information | Save file succeed! | Ok")}));
    QCOMPARE(contentOf(file), document);
}

void TestDesignFiles::saveTellsHowItEnded()
{
    const PageFixture page(ZN64G110);
    const QStringList before = page.state();
    DialogAnswers answers{DialogAnswers::choose(path("no folder/design")), DialogAnswers::press("Ok")};
    page.page->SaveToFile(page.series());
    QCOMPARE(answers.shown(), QStringList({QStringLiteral("Save"), errorBox("Save file failed!")}));
    // A second save asks again, and one that is cancelled ends in silence.
    page.page->SaveToFile(page.series());
    QCOMPARE(answers.shown().mid(2), QStringList(QStringLiteral("Save")));
    QCOMPARE(page.state(), before);
}

void TestDesignFiles::roundTrip()
{
    QFETCH(QString, word);
    QRandomGenerator random(200);
    PageFixture page(word);
    const PageFixture used(word);
    QSet<QByteArray> designs;
    for (int round = 0; round < randomDesigns; ++round) {
        for (int step = 0; step < 5; ++step)
            page.takeRandomStep(random);
        // A refused edit leaves old results on the screen until the next good one.
        page.page->UpdateCalculateResult();
        const QString file = path("random.ZNCK");
        QVERIFY(page.page->writeDesign(file, page.series()));
        const QByteArray text = contentOf(file);
        designs += text;
        // Into a page with a design in it, and at times into a new one.
        const QScopedPointer<PageFixture> fresh(round % 10 ? nullptr : new PageFixture(word));
        const PageFixture& reader = fresh ? *fresh : used;
        DialogAnswers answers{};
        reader.page->OpenFromFile(file);
        QCOMPARE(answers.shown(), QStringList());
        QCOMPARE(reader.state(), page.state());
        QVERIFY(reader.page->writeDesign(path("again.ZNCK"), page.series()));
        QCOMPARE(contentOf(path("again.ZNCK")), text);
    }
    QVERIFY(designs.size() > randomDesigns * 3 / 4);
}

void TestDesignFiles::readsLike_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("plain");
    const auto row = [](const char* name, const QByteArray& document, const char* plain) {
        QTest::newRow(name) << document << documentOf(plain);
    };
    const QByteArray two = "<ahbdiv>4</ahbdiv><pllrcs>1</pllrcs>";
    const char plain[] = "ahbdiv=4 pllrcs=1";
    row("any root", "<x>" + two + "</x>", plain);
    row("other order", "<x><pllrcs>1</pllrcs><ahbdiv>4</ahbdiv></x>", plain);
    row("first of two wins", "<x>" + two + "<ahbdiv>8</ahbdiv></x>", plain);
    row("unknown elements and attributes",
        "<x a='1'><y><z/>5</y><ahbdiv b='2'>4</ahbdiv><pllrcs>1</pllrcs></x>", plain);
    row("comments and CDATA",
        "<!--x--><x><!--y--><ahbdiv><![CDATA[4]]><!--z--></ahbdiv><pllrcs>1</pllrcs></x>", plain);
    row("nested counts as absent", "<x><a><hext>12</hext></a>" + two + "</x>", plain);
    row("text in pieces", "<x><ahbdiv><a>1</a>2<b>8</b></ahbdiv></x>", "ahbdiv=128");
    row("blanks and signs", "<x><ahbdiv> 4\n</ahbdiv><pllrcs>+1</pllrcs></x>", plain);
    row("no numbers",
        "<x><ahbdiv>four</ahbdiv><pllrcs>0x1</pllrcs><apb1div>2.0</apb1div><rtcsel>1 1</rtcsel></x>",
        "ahbdiv=0");
    row("huge numbers",
        "<x><ahbdiv>4294967298</ahbdiv><pllmult>99999999999</pllmult><apb1div>1e1</apb1div></x>", "ahbdiv=0");
}

void TestDesignFiles::readsLike()
{
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, plain);
    const PageFixture page(ZN64G110);
    const PageFixture expected(ZN64G110);
    QVERIFY(open(page, document));
    QVERIFY(open(expected, plain));
    QCOMPARE(page.state(), expected.state());
}

void TestDesignFiles::hostileFileCountsAsEmpty_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("root and MCU") << QByteArray("<Configuration><MCU>ZN64G110</MCU></Configuration>");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not XML") << QByteArray("MCU=ZN64G110\nhext=12\n");
    QTest::newRow("zeros") << QByteArray(5000, '\0');
    QTest::newRow("cut off") << documentOf(g110).chopped(20);
    QTest::newRow("bad entity") << QByteArray("<x><hext>&hext;</hext></x>");
    QTest::newRow("bad UTF-8") << QByteArray("<x><hext>12</hext><y>\xff\xfe</y></x>");
    QTest::newRow("entities within entities")
        << QByteArray("<!DOCTYPE x [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>"
                      "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;'>]><x><ahbdiv>4</ahbdiv><hext>&c;</hext></x>");
    QTest::newRow("outer entity") << QByteArray("<!DOCTYPE x [<!ENTITY a SYSTEM 'file:///etc/passwd'>]>"
                                                "<x><ahbdiv>4</ahbdiv><hext>&a;</hext></x>");
    QTest::newRow("50 MB") << "<x><hext>" + QByteArray(50 * 1024 * 1024, '1') + "</hext></x>";
    QTest::newRow("40,000 deep") << QByteArray("<x>").repeated(40000) + QByteArray("</x>").repeated(40000);
    QTest::newRow("directory") << QByteArray();
    QTest::newRow("unreadable") << documentOf(g110);
    QTest::newRow("missing") << QByteArray();
}

void TestDesignFiles::hostileFileCountsAsEmpty()
{
    QFETCH(QByteArray, text);
    const QByteArray row = QTest::currentDataTag();
    QString file = path("hostile.ZNCK");
    {
        QFile target(file);
        QVERIFY(target.open(QIODevice::WriteOnly) && target.write(text) == text.size());
    }
    if (row == "directory")
        file = m_folder.path();
    if (row == "missing")
        file += QStringLiteral("none");
    if (row == "unreadable") {
        QVERIFY(QFile::setPermissions(file, QFile::WriteOwner));
        if (QFile(file).open(QIODevice::ReadOnly) || geteuid() == 0)
            QSKIP("this user may read everything");
    }
    for (ZN64MCUSERIALS series : {ZN64G110, ZN64G150}) {
        const PageFixture page(series);
        DialogAnswers answers{};
        QElapsedTimer timer;
        timer.start();
        page.page->OpenFromFile(file);
        QVERIFY(timer.elapsed() < 1000);
        QCOMPARE(answers.shown(), QStringList());
        const ZN64ConfigCLK& model = page.model();
        QCOMPARE(page.text("m_hext_lineEdit"), QString());
        QCOMPARE(model.Get_Hext_Input_Value(), 0.0);
        QCOMPARE(model.Get_SYSCLKSelect(), SYSCLK_HEXT);
        QCOMPARE(model.Get_TO_USB_Switch(), TO_USB_SWITCH_ENABLE);
        QCOMPARE(model.Get_USBDIV(), 1.0);
        QCOMPARE(model.Get_AHBDIV() + model.Get_APB1DIV() + model.Get_APB2DIV(), 3);
        if (series == ZN64G110) {
            QCOMPARE(model.Get_PLL_MUL(), 1);
            QCOMPARE(page.text("m_pllmult_ComboBox"), QString());
        } else {
            QCOMPARE(page.text("m_pllms_lineEdit") + page.text("m_pllns_lineEdit"), QStringLiteral("/1*31"));
            QCOMPARE(model.Get_PLL_MS() * 1000 + model.Get_PLL_NS() * 10 + model.Get_PLL_FR(), 1311);
            QCOMPARE(model.Get_RTC_DIV(), 2);
        }
    }
}

void TestDesignFiles::elements_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<QString>("expected");
    // Expected: lines of the state, with a "; " between them. On G110 the system clock stands on hick, so
    // that no divider is forced.
    const auto rows = [](const char* word, std::initializer_list<std::array<const char*, 2>> rows) {
        for (const auto& [element, expected] : rows)
            QTest::addRow("%s %s", word, element) << QByteArray(element) << QString::fromLatin1(expected);
    };
    rows("G110", {
                     {"lextbypass=5",        "Lext_Bypass_Value 1; m_lextbypass_ComboBox (off): 1enable"},
                     {"hextbypass=-1",       "Hext_Bypass_Value 1; m_hextbypass_ComboBox (off): 1enable"},
                     {"rtcswitch=2",         "ToRTC_Switch 1; m_tortc_ComboBox: 1enable"                },
                     {"rtcsel=2",            "RTCSEL 2; m_rtcsel_hext_RadioButton (off): checked"       },
                     {"rtcsel=3",            "RTCSEL 0; m_rtcsel_lick_RadioButton (off): checked"       },
                     {"rtcsel=-1",           "RTCSEL 0; m_rtcsel_lick_RadioButton (off): checked"       },
                     {"pllhextdiv=7",        "PLLHEXTDIV 1; m_pllhext_div_RadioButton (off): checked"   },
                     {"pllrcs=9",            "PLLRC 1; m_pllrcs_hick_RadioButton (off): checked"        },
                     {"pllmult=64",          "PLL_MUL 64; m_pllmult_ComboBox (off): 62  * 64"           },
                     {"pllmult=65",          "PLL_MUL 2; m_pllmult_ComboBox (off): 0  * 2"              },
                     {"pllmult=2",           "PLL_MUL 2; m_pllmult_ComboBox (off): 0  * 2"              },
                     {"pllmult=1",           "PLL_MUL 1; m_pllmult_ComboBox (off): -1"                  },
                     {"pllmult=-2147483648", "PLL_MUL 1; m_pllmult_ComboBox (off): -1"                  },
                     {"sclkselect=1",        "SYSCLKSelect 1; m_sclkselect_pll_RadioButton: checked"    },
                     {"sclkselect=3",        "SYSCLKSelect 0; m_sclkselect_hext_RadioButton: checked"   },
                     {"ahbdiv=32",           "AHBDIV 1; m_ahbdiv_ComboBox: 0  /1"                       },
                     {"ahbdiv=512",          "AHBDIV 512; m_ahbdiv_ComboBox: 8  /512"                   },
                     {"apb1div=16",          "APB1DIV 16; m_apb1div_ComboBox: 4  /16"                   },
                     {"apb2div=3",           "APB2DIV 1; m_apb2div_ComboBox: 0  /1"                     },
                     {"usbdiv=1.50",         "USBDIV 1.5; m_usbdiv_ComboBox (off): 1  /1.5"             },
                     {"usbdiv=4.5",          "USBDIV 1; m_usbdiv_ComboBox (off): 0  /1"                 },
                     {"usbdiv=nan",          "USBDIV 1; m_usbdiv_ComboBox (off): 0  /1"                 },
                     {"usbdiv=inf",          "USBDIV 1; m_usbdiv_ComboBox (off): 0  /1"                 },
                     {"usbdiv=1e400",        "USBDIV 1; m_usbdiv_ComboBox (off): 0  /1"                 },
                     {"tousbswitch=7",       "TO_USB_Switch 7; m_tousbswitch_ComboBox: -1"              },
                     {"tousbswitch=-3",      "TO_USB_Switch -3; m_tousbswitch_ComboBox: -1"             },
                     {"clkoutpinselect=9",   "CLKOUT_PinSelect 9; m_clockoutpin_ComboBox: -1"           },
                     {"clkoutpinselect=-1",  "CLKOUT_PinSelect -1; m_clockoutpin_ComboBox: -1"          },
                     {"clkout=1",            "CLKOUT 0; m_clockout_noclk_RadioButton (off): checked"    },
                     {"clkout=3",            "CLKOUT 3; m_clockout_hick_RadioButton (off): checked"     },
                     {"clkout=9",            "CLKOUT 9; m_clockout_plldiv4_RadioButton (off): checked"  },
                     {"clkout=10",           "CLKOUT 0; m_clockout_noclk_RadioButton (off): checked"    },
                     {"clkout=6",            "CLKOUT 0; m_clockout_noclk_RadioButton (off): checked"    },
                     {"adcswitch=-1",        "ToADC_Switch 1; m_toadcswitch_ComboBox: 1enable"          },
                     {"adcdiv=12",           "ToADCDIV 12; m_toadcdiv_ComboBox (off): 4 /12"            },
                     {"adcdiv=10",           "ToADCDIV 2; m_toadcdiv_ComboBox (off): 0 /2"              },
                     {"hext=12.5",           "Hext_Input_Value 12.5; m_hext_lineEdit (off): 12.5"       },
                     {"hext=3",              "Hext_Input_Value 3; m_hext_lineEdit (off): 3"             },
                     {"hext=-3",             "Hext_Input_Value -3; m_hext_lineEdit (off): -3"           },
                     {"hext=eight",          "Hext_Input_Value 0; m_hext_lineEdit (off): 0"             },
                     {"hext=nan",            "Hext_Input_Value nan; m_hext_lineEdit (off): nan"         },
                     {"hext=inf",            "Hext_Input_Value inf; m_hext_lineEdit (off): inf"         },
                     {"hext=99999999",       "Hext_Input_Value 99999999; m_hext_lineEdit (off): 1e+08"  },
    });
    rows("G150", {
                     {"rtcdiv=31",           "RTC_DIV 31; m_rtcdiv_ComboBox (off): 29  /31"                },
                     {"rtcdiv=32",           "RTC_DIV 2; m_rtcdiv_ComboBox (off): 0  /2"                   },
                     {"rtcdiv=1",            "RTC_DIV 2; m_rtcdiv_ComboBox (off): 0  /2"                   },
                     {"pllms=15",            "PLL_MS 15; m_pllms_lineEdit: /15 "                           },
                     {"pllms=16",            "PLL_MS 1; m_pllms_lineEdit: /1 "                             },
                     {"pllms=0",             "PLL_MS 1; m_pllms_lineEdit: /1 "                             },
                     {"pllms=007",           "PLL_MS 7; m_pllms_lineEdit: /007 "                           },
                     {"pllns=31",            "PLL_NS 31; m_pllns_lineEdit: *31 "                           },
                     {"pllns=500",           "PLL_NS 500; m_pllns_lineEdit: *500 "                         },
                     {"pllns=501",           "PLL_NS 31; m_pllns_lineEdit: *31 "                           },
                     {"pllfr=32",            "PLL_FR 32; m_pllfr_ComboBox: 5  /32"                         },
                     {"pllfr=3",             "PLL_FR 1; m_pllfr_ComboBox: 0  /1"                           },
                     {"usbdiv=7.0",          "USBDIV 7; m_usbdiv_ComboBox (off): 12  /7"                   },
                     {"usbdiv=7.5",          "USBDIV 1; m_usbdiv_ComboBox (off): 0  /1"                    },
                     {"hicktousb=1",         "HICK_TO_USB 1; m_tousb_hick_RadioButton (off): checked"      },
                     {"hicktousb=2",         "HICK_TO_USB 0; m_tousb_pll_RadioButton (off): checked"       },
                     {"hicktosclk=1",        "HICK_TO_SCLK 1; m_hicktosclk_RadioButton (off): checked"     },
                     {"hicktosclk=2",        "HICK_TO_SCLK 0; m_hicktosclk_div6_RadioButton (off): checked"},
                     {"clkout1=3",           "CLKOUT1 3; m_clockout1_pll_RadioButton (off): checked"       },
                     {"clkout1=4",           "CLKOUT1 0; m_clockout1_hick_RadioButton (off): checked"      },
                     {"clkout1div1=5",       "CLKOUT1_Div1 5; m_clockout1div1_ComboBox (off): 4  /5"       },
                     {"clkout1div1=6",       "CLKOUT1_Div1 1; m_clockout1div1_ComboBox (off): 0  /1"       },
                     {"clkout2div2=512",     "CLKOUT2_Div2 512; m_clockout2div2_ComboBox (off): 8  /512"   },
                     {"clkout2div2=32",      "CLKOUT2_Div2 1; m_clockout2div2_ComboBox (off): 0  /1"       },
                     {"clkout1pinselect=2",  "CLKOUT1_PinSelect 2; m_clockout1pin_ComboBox: 2PE4"          },
                     {"clkout1pinselect=3",  "CLKOUT1_PinSelect 3; m_clockout1pin_ComboBox: -1"            },
                     {"clkout2=7",           "CLKOUT2 7; m_clockout2_lext_RadioButton (off): checked"      },
                     {"clkout2=8",           "CLKOUT2 0; m_clockout2_sclk_RadioButton (off): checked"      },
                     {"clkout2=3",           "CLKOUT2 4; m_clockout2_hick_RadioButton (off): checked"      },
                     {"clkout2pinselect=-7", "CLKOUT2_PinSelect -7; m_clockout2pin_ComboBox: -1"           },
    });
}

void TestDesignFiles::elements()
{
    QFETCH(QByteArray, element);
    QFETCH(QString, expected);
    const QString word = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0);
    const QByteArray name = element.split('=').first();
    QByteArray document;
    for (QByteArray each : (word == QLatin1String("G110") ? g110 : g150).split(' ')) {
        if (each.startsWith("sclkselect=") && word == QLatin1String("G110"))
            each = "sclkselect=2";
        document += each.startsWith(name + '=') ? element + ' ' : each + ' ';
    }
    const PageFixture page(word);
    QVERIFY(open(page, documentOf(document.trimmed())));
    const QStringList state = page.state();
    for (const QString& line : expected.split(QStringLiteral("; "))) {
        const QStringList found = state.filter(line.section(QLatin1Char(' '), 0, 0));
        QVERIFY2(state.contains(line), qPrintable(found.join(QLatin1Char('\n'))));
    }
}

QTEST_MAIN(TestDesignFiles)
#include "tst_designfiles.moc"
