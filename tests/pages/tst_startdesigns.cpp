#include "pagefixture.h"
#include "testdata.h"

// What the facts of a series come to on its page: the frequencies that a new design shows, and where they
// turn red.

class TestStartDesigns : public QObject
{
    Q_OBJECT

private slots:
    void newDesigns_data();
    void newDesigns();
    void captions_data();
    void captions();
    void columns_data();
    void columns();
    void redAboveTheirLimits_data();
    void redAboveTheirLimits();
    void sourcesTellTheirClocks_data() { pageRows(); }
    void sourcesTellTheirClocks();
};

namespace {

/// One clock of the model at the value, MHz, the others low. A bus gets it from twice as much, so that no
/// rule moves its divider.
void put(ZN64ConfigCLK& model, const QString& clock, double value)
{
    const bool bus = clock.startsWith(QLatin1String("apb"));
    model.Set_SYSCLKSelect(SYSCLK_HEXT);
    model.Set_HEXT_DIV(1);
    model.Set_AHBDIV(1);
    model.Set_APB1DIV(clock == QLatin1String("apb1") ? 2 : 16);
    model.Set_APB2DIV(clock == QLatin1String("apb2") ? 2 : 16);
    model.Set_APB3DIV(clock == QLatin1String("apb3") ? 2 : 16);
    model.Set_Hext_Input_Value(bus ? 2 * value : 8.0);
    model.CalculateCLK();
    model.Set_SYSCLKValue(clock == QLatin1String("sclk") ? value : 8.0);
    model.Set_PLLCLKValue(clock == QLatin1String("pll") ? value : 64.0);
}

} // namespace

void TestStartDesigns::newDesigns_data()
{
    // The highest sclk; sclk, AHB, APB1 and its timers, APB2 and its timers; what stands beside them.
    rows({
        "G110 | 200 | 192 192 96 192 96 192 | hick_lineEdit: 8; hext_lineEdit: 8; usbdiv_ComboBox: /4; "
        "pllmult_ComboBox: * 24; toadcdiv_ComboBox: /2; tortc_lineEdit: 40",
        "G110R G114 | 240 | 240 240 120 240 120 240 | usbdiv_ComboBox: /4; hextdiv_ComboBox: /2; "
        "pllmult_ComboBox: * 30",
        "H110R | 200 | 200 200 100 200 100 200 | usbdiv_ComboBox: /4; hextdiv_ComboBox: /2; "
        "pllmult_ComboBox: * 25",
        "G120 | 200 | 200 200 100 200 100 200 | usbdiv_ComboBox: /4; pllmult_ComboBox: * 25",
        "G125 TQ125 | 150 | 144 144 72 144 72 144 | usbdiv_ComboBox: /3; pllmult_ComboBox: * 18; "
        "pllns_lineEdit: *72; pllfr_ComboBox: /4",
        "G130 | 120 | 120 120 120 120 120 120 | pllmult_ComboBox: * 15; pllns_lineEdit: *120; "
        "pllfr_ComboBox: /8",
        "G135 | 96 | 96 96 96 96 96 96 | usbdiv_ComboBox: /2; pllmult_ComboBox: * 12; pllns_lineEdit: *96; "
        "pllfr_ComboBox: /8",
        "D042 | 80 | 80 80 80 80 80 80 | pllmult_ComboBox: * 10; pllns_lineEdit: *80; pllfr_ComboBox: /8; "
        "toadcdiv_ComboBox: /2",
        "G142 G146 | 200 | 200 200 200 200 200 200 | toapb3peripheral_lineEdit: 50.000; toadcdiv_ComboBox: "
        "/6; pllns_lineEdit: *75; pllfr_ComboBox: /4",
        "G133 H133 | 150 | 150 150 75 150 150 150 | pllclk_Label: 300.000MHz; usbdiv_ComboBox: /6; "
        "pllCFG_Value_lineEdit: 0x004112c1",
        "P212 P216 | 180 | 180 180 180 180 180 180 | toapb3peripheral_lineEdit: 45.000; "
        "pllCFG_Value_lineEdit: 0x00421681",
        "G171 G190 | 216 | 216 216 108 216 216 216 | hext_lineEdit: 8; pllns_lineEdit: *108; pllfp_ComboBox: "
        "/4; pllfu_ComboBox: /18",
        "G174 | 216 | 216 216 108 216 216 216 | hext_lineEdit: 12; tousbhsphy_lineEdit: 12.000; "
        "pllns_lineEdit: *72; pllfp_ComboBox: /4; pllfu_ComboBox: /18",
        "G165 G166 G167 | 192 | 192 192 192 192 192 192 | toapb3peripheral_lineEdit: 48.000; pllns_lineEdit: "
        "*144; pllfp_ComboBox: /6; pllfu_ComboBox: /16; pllCFG_Value_lineEdit: 0x40432401",
        "G150 G152 | 288 | 288 288 144 288 144 288 | usbdiv_ComboBox: /6; pllns_lineEdit: *144; "
        "pllfr_ComboBox: /4",
    });
}

void TestStartDesigns::newDesigns()
{
    QFETCH(QStringList, fields);
    const PageFixture& page = resetPage(fields[0]);
    QStringList shown;
    for (const char* output :
         {"sclk", "todma", "toapb1peripheral", "toapb1tmr", "toapb2peripheral", "toapb2tmr"})
        shown << QString::number(
            page.find<QLineEdit>(QLatin1String(output) + "_lineEdit"_s)->text().toDouble());
    QCOMPARE(shown.join(u' '), fields[2]);
    QCOMPARE(page.shows(fields[3]), fields[3]);

    // A typed clock is good up to the highest; above it, it is red, and refused.
    const QString before = page.shows("SYSCLKValue; todma_lineEdit"_s);
    const QString highest = fields[1];
    page.take("sclk_lineEdit~"_s + QString::number(highest.toInt() - 0.001, 'f', 3));
    QVERIFY(page.shows("sclk_lineEdit?"_s).endsWith(".999 darkGreen pale"_s));
    DialogAnswers answers({"Ok"_s});
    page.take("sclk_lineEdit=%1.001"_s.arg(highest));
    QCOMPARE(answers.shown(), QStringList(errorBox("sclk input error!"_s)));
    QCOMPARE(page.shows("sclk_lineEdit?"_s), "sclk_lineEdit?: %1.001 red pale"_s.arg(highest));
    QCOMPARE(page.shows("SYSCLKValue; todma_lineEdit"_s), before);
}

void TestStartDesigns::captions_data()
{
    rows({
        "G110 | rtcsel_Label: rtcsel; tortc_Label: to rtc(kHz); sclkRange_Label: (4 - 200); hext_Label1: "
        "hext(4-25MHz); "
        "lick_lineEdit: 40; lext_lineEdit: 32.768",
        "G110R G114 | rtcsel_Label: rtcsel; sclkRange_Label: (4 - 240); hick_lineEdit: 48",
        "G130 G135 | rtcsel_Label: ertcsel; tortc_Label: to ertc(kHz); hext_Label1: hext(4-25MHz)",
        "G133 H133 | sclk_Label: sclk(150MHz max); apb1divMax_Label: 120MHz max; apb2divMax_Label: 150MHz "
        "max; "
        "pllms_Label2: (1-15); pllns_Label2: (31-500)",
        "G171 G174 G190 | sclk_Label: sclk(216MHz max); apb1divMax_Label: 120MHz max; apb2divMax_Label: "
        "216MHz max",
        "G165 G166 G167 | sclk_Label: sclk(192MHz max); apb1divMax_Label: 192MHz max; apb3divMax_Label: "
        "90MHz max",
        "P212 P216 | sclk_Label: sclk(180MHz max); apb2divMax_Label: 180MHz max; apb3divMax_Label: 90MHz max",
        "G142 G146 | sclkRange_Label: (4 - 200); apb3divMax_Label: 90MHz max",
        "G150 G152 | sclk_Label: sclk(4 - 288 MHz); apb1divMax_Label: 144MHz max; apb2divMax_Label: 144MHz "
        "max",
    });
}

void TestStartDesigns::captions()
{
    QFETCH(QStringList, fields);
    const PageFixture& page = resetPage(fields[0]);
    QCOMPARE(page.shows(fields[1]), fields[1]);
}

void TestStartDesigns::columns_data()
{
    // The outputs from top to bottom, and the lists of what hangs on the buses and on their timers.
    rows({
        "G110 | outputs | i2s systick sido dma xmc apb1peripheral apb1tmr adc apb2peripheral apb2tmr",
        "G110R H110R | outputs | i2s systick sido dma xmc gpio apb1peripheral apb1tmr adc apb2peripheral "
        "apb2tmr",
        "G114 | outputs | i2s systick sido dma xmc emac gpio apb1peripheral apb1tmr adc apb2peripheral "
        "apb2tmr",
        "G120 G125 | outputs | i2s systick sido dma gpio apb1peripheral apb1tmr adc apb2peripheral apb2tmr",
        "TQ125 | outputs | systick dma gpio apb1peripheral apb1tmr adc apb2peripheral apb2tmr",
        "G130 G135 D042 | outputs | i2s systick dma gpio apb1peripheral apb1tmr adc apb2peripheral apb2tmr",
        "G142 G146 | outputs | i2s systick dma gpio apb1peripheral apb1tmr adc apb2peripheral apb2tmr "
        "apb3peripheral",
        "G133 H133 G171 G190 | outputs | i2s systick dma xmc gpio apb1peripheral apb1tmr apb2peripheral "
        "apb2tmr",
        "P212 P216 | outputs | i2s systick dma gpio apb1peripheral apb1tmr apb2peripheral apb2tmr "
        "apb3peripheral",
        "G174 | outputs | i2s systick dma xmc gpio apb1peripheral apb1tmr apb2peripheral apb2tmr usbhsphy",
        "G165 G166 | outputs | i2s systick sido dma xmc gpio aes trng qspi adc apb1peripheral apb1tmr "
        "apb2peripheral apb2tmr apb3peripheral",
        "G167 | outputs | i2s systick sido dma xmc gpio aes trng qspi emac adc apb1peripheral apb1tmr "
        "apb2peripheral apb2tmr apb3peripheral",
        "G150 | outputs | i2s systick sido dma xmc gpio dvp qspi adc apb1peripheral apb1tmr apb2peripheral "
        "apb2tmr",
        "G152 | outputs | i2s systick sido dma xmc gpio dvp qspi emac adc apb1peripheral apb1tmr "
        "apb2peripheral apb2tmr",
        "G110 | apb1peripheral | SPI2 SPI3 SPI4 USART2 USART3 UART4 UART5 I2C1 I2C2 I2C3 CAN1 DAC",
        "G110R H110R G114 | apb1peripheral | SPI2 SPI3 SPI4 USART2 USART3 UART4 UART5 I2C1 I2C2 CAN1 CAN2 "
        "DAC",
        "G120 | apb1peripheral | SPI2 USART2 USART3 UART4 UART5 I2C1 I2C2 CAN1 CAN2",
        "G125 | apb1peripheral | SPI2 USART2 USART3 UART4 UART5 I2C1 I2C2 CAN1 CMP",
        "TQ125 | apb1peripheral | SPI2 USART2 USART3 UART5 I2C1 CAN1 CMP",
        "G130 | apb1peripheral | SPI2 USART2 I2C1 I2C2",
        "G135 | apb1peripheral | SPI2 SPI3 USART2 USART3 USART4 I2C1 I2C2 CAN1",
        "D042 | apb1peripheral | SPI2 USART3 USART4 I2C2 CAN1",
        "G142 G146 | apb1peripheral | SPI2 USART2 I2C1 I2C2 CAN1",
        "G133 H133 G150 G152 | apb1peripheral | SPI2 SPI3 USART2 USART3 UART4 UART5 UART7 UART8 I2C1 I2C2 "
        "I2C3 CAN1 CAN2 DAC",
        "P212 P216 | apb1peripheral | DAC SPI2 USART2 I2C1 I2C2 CAN1",
        "G171 G190 G174 | apb1peripheral | SPI2 SPI3 USART2 USART3 USART4 USART5 USART7 USART8 I2C1 I2C2 "
        "I2C3 CAN1",
        "G165 G166 G167 | apb1peripheral | SPI2 SPI3 USART2 USART3 USART4 USART5 USART7 USART8 I2C1 I2C2 "
        "I2C3 CAN1 CAN2 CAN3 DAC",
        "G110 G110R H110R G114 G133 H133 G165 G166 G167 G150 G152 | apb1tmr | TMR2 TMR3 TMR4 TMR5 TMR6 TMR7 "
        "TMR12 TMR13 TMR14",
        "G120 G125 TQ125 | apb1tmr | TMR2 TMR3 TMR4 TMR5",
        "G130 D042 | apb1tmr | TMR3 TMR6 TMR14",
        "G135 | apb1tmr | TMR2 TMR3 TMR6 TMR7 TMR13 TMR14",
        "G142 G146 | apb1tmr | TMR3 TMR4 TMR6",
        "P212 P216 | apb1tmr | TMR3 TMR4 TMR6 TMR7",
        "G171 G190 G174 | apb1tmr | TMR2 TMR3 TMR4 TMR6 TMR7 TMR13 TMR14",
        "G110 | apb2peripheral | GPIOA GPIOB GPIOC GPIOD GPIOE GPIOF GPIOG SPI1 USART1",
        "G110R H110R G114 | apb2peripheral | I2C3 SPI1 USART1 USART6 UART7 UART8",
        "G120 G125 | apb2peripheral | SPI1 USART1",
        "TQ125 | apb2peripheral | USART1",
        "G130 G142 G146 | apb2peripheral | SPI1 USART1 SCFG CMP",
        "G135 | apb2peripheral | SPI1 USART1 SCFG",
        "D042 | apb2peripheral | SCFG ADC1 SPI1",
        "G133 H133 | apb2peripheral | SPI1 USART1 USART6 SCFG",
        "P212 P216 | apb2peripheral | SPI1 SCFG ADC USART1 OP CMP",
        "G171 G190 G174 | apb2peripheral | ACC I2SF5 SPI1 SCFG ADC1 USART1 USART6",
        "G165 G166 G167 G150 G152 | apb2peripheral | SPI1 SPI4 USART1 USART6 SCFG",
        "G110 | apb2tmr | TMR1 TMR8 TMR9 TMR10 TMR11 TMR15",
        "G110R H110R G114 G120 G165 G166 G167 | apb2tmr | TMR1 TMR8 TMR9 TMR10 TMR11",
        "G125 TQ125 G133 H133 P212 P216 G171 G190 G174 | apb2tmr | TMR1 TMR9 TMR10 TMR11",
        "G130 G135 D042 G142 G146 | apb2tmr | TMR1 TMR15 TMR16 TMR17",
        "G150 G152 | apb2tmr | TMR1 TMR8 TMR9 TMR10 TMR11 TMR20",
    });
}

void TestStartDesigns::columns()
{
    QFETCH(QStringList, fields);
    const PageFixture& page = resetPage(fields[0]);
    const auto placeOf = [&page](const QString& name) {
        return ZN64MCUPLL::proxyOf(page.find(name.mid(2)))->sceneBoundingRect();
    };
    const QRectF column = placeOf("m_toapb1tmr_lineEdit"_s);
    QMap<int, QString> shown;
    for (const QWidget* edit :
         page.page->findChildren<QLineEdit*>(QRegularExpression("^m_to.*_lineEdit$"_s))) {
        const QRectF place = placeOf(edit->objectName());
        if (fields[1] == "outputs"_s && qAbs(place.left() - column.left()) < 5)
            shown.insert(int(place.top()), edit->objectName().mid(4).chopped(9));
    }
    for (const ListNames& names : listNames()) {
        if (QLatin1String(names.output) != "m_to%1_lineEdit"_s.arg(fields[1]))
            continue;
        for (const QLabel* label : page.find(QLatin1String(names.group + 2))->findChildren<QLabel*>())
            shown.insert(shown.size(), label->text());
        // A list opens below its button, or ends beside it.
        const QRectF output = placeOf(QLatin1String(names.output));
        const QRectF opened = placeOf(QLatin1String(names.group));
        const qreal down = opened.top() - output.top();
        const qreal rest = opened.bottom() - output.top();
        QVERIFY2(down == 40 || down == 45 || (rest >= 19 && rest <= 22),
                 qPrintable("%1 %2"_s.arg(down).arg(rest)));
    }
    QCOMPARE(QStringList(shown.values()).join(u' '), fields[2]);
}

void TestStartDesigns::redAboveTheirLimits_data()
{
    // The field, the clock that decides its colour, and the limit.
    rows({
        "G110 H110R G120 | toapb1peripheral apb1 100, toapb2peripheral apb2 100, pllclk "
        "pll 200",
        "G110R G114 | toapb1peripheral apb1 120, toapb2peripheral apb2 120, pllclk pll 240",
        "G125 TQ125 | toapb1peripheral apb1 75, toapb2peripheral apb2 75, pllclk pll 150",
        "G130 | toapb1peripheral apb1 120, toapb2peripheral apb2 120, pllclk pll 120",
        "G135 | toapb1peripheral apb1 96, toapb2peripheral apb2 96, pllclk pll 96",
        "D042 | toapb1peripheral apb1 80, toapb2peripheral apb2 80, pllclk pll 80",
        "G142 G146 | toapb1peripheral apb1 200, toapb2peripheral apb2 200, toapb3peripheral apb3 90, pllclk "
        "pll 200, "
        "tocan apb1 180",
        "G150 G152 | toapb1peripheral apb1 144, toapb2peripheral apb2 144, pllclk pll 288",
        "G133 H133 | toapb1peripheral apb1 120, toapb2peripheral apb2 150, tousart1 apb2 150, tousart2 apb1 "
        "150, "
        "tousart3 apb1 150, toi2c1 apb2 150",
        "G171 G174 G190 | toapb1peripheral apb1 120, toapb2peripheral apb2 216, pllclk pll 216, toi2sf5 pll "
        "216",
        "G165 | toapb1peripheral apb1 192, toapb2peripheral apb2 192, toapb3peripheral apb3 90, pllclk pll "
        "192, "
        "toi2sf5 pll 192",
        "G166 G167 | toapb3peripheral apb3 192, pllclk pll 192",
        "P212 P216 | toapb1peripheral apb1 180, toapb2peripheral apb2 180, toapb3peripheral apb3 90, tocan "
        "apb1 180",
    });
}

void TestStartDesigns::redAboveTheirLimits()
{
    QFETCH(QStringList, fields);
    const PageFixture& page = resetPage(fields[0]);
    for (auto* combo :
         page.page->findChildren<QComboBox*>(QRegularExpression("^m_(usart|i2c|can|i2sf).*switch"_s)))
        combo->setCurrentIndex(1);
    for (const QString& limit : fields[1].split(", "_s)) {
        const QStringList parts = limit.split(u' ');
        const bool label = parts[0] == "pllclk"_s;
        const auto* control = page.find<QWidget>(parts[0] + (label ? "_Label"_s : "_lineEdit"_s));
        const auto isRed = [&](double value) {
            put(page.model(), parts[1], value);
            page.tree().UpdateResultControls();
            const QPalette palette = control->palette();
            return palette.color(label ? QPalette::WindowText : QPalette::Text) == QColor(Qt::red);
        };
        const double value = parts[2].toDouble();
        QVERIFY2(!isRed(value), qPrintable(limit));
        QVERIFY2(isRed(above(value)), qPrintable(limit));
    }
}

/// Every source of every clock output shows the clock that its name says.
void TestStartDesigns::sourcesTellTheirClocks()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    const ZN64ConfigCLK& model = page.model();
    for (const char* step : {"toadcswitch=enable", "tousbswitch=enable", "tortc=enable", "rtcsel_lext"})
        if (page.page->findChild<QWidget*>("m_"_s + QString::fromLatin1(step).section(u'=', 0, 0) +
                                           (strchr(step, '=') ? "_ComboBox"_s : "_RadioButton"_s)))
            page.take(QString::fromLatin1(step));
    const double hick = page.tree().hickAtOutputs();
    const QHash<QString, double> clocks{
        {"lick"_s,   40.0                        },
        {"lext"_s,   32.768                      },
        {"hick"_s,   hick                        },
        {"hick48"_s, 48.0                        },
        {"hext"_s,   model.Get_Hext_Input_Value()},
        {"sclk"_s,   model.Get_SYSCLKValue()     },
        {"pll"_s,    model.Get_PLLCLKValue()     },
        {"pll/2"_s,  model.Get_PLLCLKValue() / 2 },
        {"pll/4"_s,  model.Get_PLLCLKValue() / 4 },
        {"usb"_s,    model.Get_USBCLKValue()     },
        {"usbfs"_s,  model.Get_USBCLKValue()     },
        {"adcclk"_s, model.Get_ADCCLK_Value()    },
        {"adc"_s,    model.Get_ADCCLK_Value()    },
    };
    int seen = 0;
    for (const ClockOutput& output : page.page->description().clockOutputs) {
        page.find<QComboBox>(output.member("pin_ComboBox").mid(2))->setCurrentIndex(1);
        for (const ClockOutputRow& row : output.rows) {
            const QString name = page.find<QLabel>(output.member(row, "QLabel1").mid(2))->text();
            page.find<QRadioButton>(output.member(row, "RadioButton").mid(2))->click();
            const QString shown = page.find<QLabel>(output.member("_Value_QLabel").mid(2))->text();
            if (!clocks.contains(name) || row.source == ClockSource::Untold) {
                QVERIFY2(shown.isEmpty(), qPrintable(name + u' ' + shown));
                continue;
            }
            const QString unit = name == "lick"_s || name == "lext"_s ? "kHz"_s : "MHz"_s;
            QCOMPARE(
                name + u' ' + shown,
                QStringLiteral("%1 (%2 %3)").arg(name, QString::number(clocks.value(name), 'f', 3), unit));
            ++seen;
        }
    }
    QVERIFY(seen >= 6);
}

QTEST_MAIN(TestStartDesigns)
#include "tst_startdesigns.moc"
