#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "testdata.h"

#include <QRegularExpression>
#include <QSet>

namespace {
const char* const endings[] = {"clock.c", "clock.h", "conf.h", "main.c"};

QByteArray templateOf(const QString& stem, const char* ending)
{
    return contentOf(QStringLiteral(":/image/%1_%2").arg(stem, QLatin1String(ending)));
}

/// A line behind every opening marker, by which a kept section is known again.
QString withProbes(QString text, int& count)
{
    const QRegularExpression opening(QStringLiteral(R"(\[#[^\]]+\]\n)"));
    for (auto match = opening.match(text); match.hasMatch(); match = opening.match(text, match.capturedEnd()))
        text.insert(match.capturedEnd(), QStringLiteral("/* probe %1 */\n").arg(count++));
    return text;
}

void collectProbes(const QString& text, QSet<int>& kept)
{
    static const QRegularExpression probe(QStringLiteral(R"(/\* probe (\d+) \*/)"));
    for (auto each = probe.globalMatch(text); each.hasNext();)
        kept += each.next().captured(1).toInt();
}

/// All that generates code switched on; what excludes one another is thrown by the numbers of the round.
void switchOn(ZN64ConfigCLK& clock, int sclk, int mode, int rtc, bool hickToUsb)
{
    clock.Set_SYSCLKSelect(sclk);
    clock.Set_ConfigMode(static_cast<PLLCONFIGMODE>(mode));
    clock.Set_RTCSEL(static_cast<RTCSEL>(rtc));
    clock.Set_HICK_TO_USB(hickToUsb);
    clock.Set_SYSCLKValue(mode == 0 ? 120.0 : 180.0);
    clock.Set_HICK_TO_SCLK(HICK_TO_SCLK_NODIV);
    clock.Set_TO_USB_Switch(TO_USB_SWITCH_ENABLE);
    clock.Set_PLLRC(PLLRC_HEXT);
    clock.Set_PLLHEXTDIV(PLLHEXT_DIV);
    clock.Set_Hext_Bypass_Value(true);
    clock.Set_Lext_Bypass_Value(true);
    clock.Set_CLKOUT_PinSelect(CLKOUTPIN_PA8);
    clock.Set_CLKOUT1_PinSelect(CLKOUT1PIN_PA8);
    clock.Set_CLKOUT2_PinSelect(CLKOUT2PIN_PC9);
    clock.Set_ToRTC_Switch(true);
    clock.Set_ToADC_Switch(true);
    clock.Set_I2C1_Switch(true);
    clock.Set_I2SF5_Switch(true);
    clock.Set_CAN1_Switch(true);
    clock.Set_can1_Clock_Source(CAN_CLOCK_SOURCE_PLL);
    clock.Set_USART1_Switch(true);
    clock.Set_usart1_Clock_Source(USART_CLOCK_SOURCE_LEXT);
}
} // namespace

/// The templates against the chains that edit them: what one looks for, the other must hold, and no more.
class TemplatesTest : public QObject
{
    Q_OBJECT

private slots:
    void everySectionIsKeptBySomeDesign_data() { seriesRows(); }
    void everySectionIsKeptBySomeDesign()
    {
        QFETCH(int, series);
        const QScopedPointer<ClockTreePage> page(
            createSeriesPage(static_cast<ZN64MCUSERIALS>(series), nullptr));
        const QString stem = page->description().stem();
        int count = 0;
        const QString clockSource =
            withProbes(QString::fromUtf8(templateOf(stem, "clock.c")).remove(u'\r'), count);
        const QString mainSource =
            withProbes(QString::fromUtf8(templateOf(stem, "main.c")).remove(u'\r'), count);
        QVERIFY(count > 15);
        QSet<int> kept;
        for (int round = 0; round < 36; ++round) {
            ZN64ConfigCLK clock = page->model();
            switchOn(clock, round % 3, round / 3 % 2, round / 6 % 3, round >= 18);
            QString text = clockSource;
            QVERIFY(clock.GenerateClockSource(text));
            QString mainText = mainSource;
            QVERIFY(clock.GenerateMainSource(mainText));
            text += mainText;
            QVERIFY2(!text.contains("[#"_s) && !text.contains("[/#"_s), qPrintable(text));
            collectProbes(text, kept);
        }
        for (int probe = 0; probe < count; ++probe) {
            const QString both = clockSource + mainSource;
            const int at = both.indexOf(QStringLiteral("/* probe %1 */").arg(probe));
            QVERIFY2(kept.contains(probe), qPrintable(both.left(at).section(u'\n', -2, -2)));
        }
    }

    /// A lone CR or LF would show up in the generated files only on another system.
    void lineEndsAreOfOneKind()
    {
        int withLf = 0;
        QCOMPARE(stems().size(), 17);
        for (const QString& stem : stems())
            for (const char* ending : endings) {
                const QByteArray text = templateOf(stem, ending);
                const bool lf = !text.contains('\r');
                QVERIFY2(lf || text.count('\n') == text.count("\r\n"), qPrintable(stem));
                QVERIFY2(!lf || qstrcmp(ending, "conf.h") == 0, qPrintable(stem));
                withLf += lf;
            }
        QCOMPARE(withLf, 9);
    }

    void modulesOfEachStem_data()
    {
        fieldRows({"zn64g110 | CRM TMR RTC BPR GPIO I2C USART PWC CAN ADC DAC SPI DMA DEBUG FLASH CRC WWDT "
                   "WDT EXINT SDIO XMC USB MISC",
                   "zn64g110r_114 zn64h110r | CRM TMR RTC BPR GPIO I2C USART PWC CAN ADC DAC SPI DMA DEBUG "
                   "FLASH CRC WWDT WDT EXINT SDIO XMC USB ACC MISC EMAC",
                   "zn64g120 | CRM TMR RTC BPR GPIO I2C USART PWC CAN ADC SPI DMA DEBUG FLASH CRC WWDT WDT "
                   "EXINT SDIO USB ACC MISC",
                   "zn64g125 | CRM CMP TMR ERTC GPIO I2C USART PWC CAN ADC SPI DMA DEBUG FLASH CRC WWDT WDT "
                   "EXINT SDIO USB MISC",
                   "zn64tq125 | CRM CMP TMR ERTC GPIO I2C USART PWC CAN ADC SPI DMA DEBUG FLASH CRC WWDT WDT "
                   "EXINT USB MISC",
                   "zn64g130 | CRM CMP TMR ERTC GPIO I2C USART PWC ADC SPI DMA DEBUG FLASH CRC WWDT WDT "
                   "EXINT MISC SCFG",
                   "zn64g135 | ACC CRM TMR ERTC GPIO I2C CAN USB USART PWC ADC SPI DMA DEBUG FLASH CRC WWDT "
                   "WDT EXINT MISC SCFG",
                   "zn64g133 zn64h133 | CRM TMR ERTC GPIO I2C USART PWC CAN ADC DAC SPI DMA DEBUG FLASH CRC "
                   "WWDT WDT EXINT XMC USB ACC MISC SCFG",
                   "zn64g150_152 | CRM TMR ERTC GPIO I2C USART PWC CAN ADC DAC SPI EDMA DMA DEBUG FLASH CRC "
                   "WWDT WDT EXINT SDIO XMC USB ACC MISC QSPI DVP SCFG EMAC",
                   "zn64g171_174 zn64g190 | ACC ADC CAN CRC CRM DEBUG DMA ERTC EXINT FLASH GPIO I2C MISC PWC "
                   "QSPI SCFG SPI TMR USART USB WDT WWDT",
                   "zn64g16x | ACC ADC AES CAN CRC CRM DAC DEBUG DMA EMAC ERTC EXINT FLASH GPIO I2C MISC PWC "
                   "QSPI SCFG SDIO SPI TMR TRNG USART USB WWDT WDT XMC",
                   "zn64d042 | CRM CAN TMR ERTC GPIO I2C USART PWC ADC SPI DMA DEBUG FLASH CRC WWDT WDT "
                   "EXINT MISC SCFG HWDIV",
                   "zn64p212_216 | ADC CAN CMP CRC CRM DAC DEBUG DMA ERTC EXINT FLASH GPIO I2C MISC OP PWC "
                   "SCFG SPI TMR USART WWDT WDT",
                   "zn64g142_146 | ADC CAN CMP CRC CRM DEBUG DMA ERTC EXINT FLASH GPIO I2C MISC PWC SCFG SPI "
                   "TMR USART WDT WWDT"});
    }
    /// What a chip's library lacks does not compile, and what is left out cannot be used: no other file
    /// tells.
    void modulesOfEachStem()
    {
        QFETCH(QStringList, fields);
        for (const QString& stem : fields[0].split(u' ')) {
            const QString text = QString::fromUtf8(templateOf(stem, "conf.h")).remove(u'\r');
            for (const QString& line :
                 {"#define (\\w+)_MODULE_ENABLED\n"_s, "#ifdef (\\w+)_MODULE_ENABLED\n"_s,
                  "#include \"%1_(\\w+)\\.h\"\n"_s.arg(stem)}) {
                QStringList found;
                for (auto each = QRegularExpression(line).globalMatch(text); each.hasNext();)
                    found += each.next().captured(1).toUpper();
                QCOMPARE(found.join(u' '), fields[1]);
            }
        }
    }

    /// The library's own blanks at line ends, which an editor takes away unseen, and no others.
    void blanksAtLineEnds()
    {
        const QString delay =
            "main.c:     voltage of battery powered domain (2.57V) when the battery powered "_s;
        const QMap<QString, QString> wanted{
            {"zn64g133"_s,     delay         },
            {"zn64h133"_s,     delay         },
            {"zn64g150_152"_s, "clock.c: "_s },
            {"zn64g171_174"_s, "clock.c:  "_s},
            {"zn64g190"_s,     "clock.c:  "_s}
        };
        for (const QString& stem : stems()) {
            QStringList found;
            for (const char* ending : endings)
                for (const QString& line :
                     QString::fromUtf8(templateOf(stem, ending)).remove(u'\r').split(u'\n'))
                    if (line.endsWith(u' '))
                        found += QLatin1String(ending) + u':' + line;
            QVERIFY2(found.join(u'\n') == wanted.value(stem), qPrintable(stem + u'\n' + found.join(u'\n')));
        }
    }

private:
    static QSet<QString> stems()
    {
        QSet<QString> all;
        for (const SeriesTraits& traits : seriesList()) {
            const QScopedPointer<ClockTreePage> page(createSeriesPage(traits.series, nullptr));
            all += page->description().stem();
        }
        return all;
    }

    static void seriesRows()
    {
        QTest::addColumn<int>("series");
        for (const SeriesTraits& traits : seriesList())
            QTest::newRow(traits.word) << int(traits.series);
    }
};

QTEST_MAIN(TemplatesTest)
#include "tst_templates.moc"
