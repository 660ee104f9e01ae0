#include "shownclocks.h"
#include "testdata.h"

#include <QTemporaryDir>

#include <numeric>

namespace {
/// More for a longer run: CLOCKWRIGHT_DESIGNS=200.
int designsPerSeries()
{
    constexpr int Usual = 40; // the number that the documentation's table tells of
    const int wanted = qEnvironmentVariableIntValue("CLOCKWRIGHT_DESIGNS");
    return wanted > 0 ? wanted : Usual;
}

QByteArray counts(const QMap<QString, int>& numbers)
{
    QStringList words;
    for (auto each = numbers.begin(); each != numbers.end(); ++each)
        words += QStringLiteral("%1 %2").arg(each.key()).arg(*each);
    return words.join(", "_s).toUtf8();
}

/// What the designs of a series came to.
class Tally
{
public:
    void add(const Shown& shown, const firmware::Run& run)
    {
        const bool stuck = !run.stuck.isEmpty();
        if (stuck)
            ++m_waiting[shown.waitsFor.join(u'+')];
        m_stuck += stuck;
        m_within += !stuck && run.limits.isEmpty();
        m_beyond += !stuck && !run.limits.isEmpty();
        m_checks += run.checks;
        m_passing48 += shown.passes48;
        for (auto dead = run.dead.begin(); dead != run.dead.end(); ++dead)
            ++m_withoutClock[dead.key() + " on "_s + dead.value()];
        for (const QString& limit : run.limits)
            ++m_over[limit];
        for (const QString& output : shown.clocks.keys())
            if (!stuck && !run.dead.contains(output))
                ++m_compared[output];
    }

    int within() const { return m_within; }

    void tell() const
    {
        qInfo("%d to the end within all limits; over: %s; waiting for a PLL whose hext is off: %s; "
              "passing 48 MHz of hick: %d; without a clock: %s; compared: %s",
              m_within, counts(m_over).constData(), counts(m_waiting).constData(), m_passing48,
              counts(m_withoutClock).constData(), counts(m_compared).constData());
    }

    /// The columns of the documentation's table behind the series.
    QString row(int wrong) const
    {
        const auto values = m_compared.values();
        return QStringLiteral("%1 | %2 | %3 | %4 | %5 | %6 | %7")
            .arg(m_within + m_beyond + m_stuck)
            .arg(m_within)
            .arg(m_beyond)
            .arg(m_stuck)
            .arg(std::accumulate(values.begin(), values.end(), 0))
            .arg(m_checks)
            .arg(wrong);
    }

private:
    int m_within = 0;
    int m_beyond = 0;
    int m_stuck = 0;
    int m_checks = 0;
    int m_passing48 = 0;
    QMap<QString, int> m_waiting;
    QMap<QString, int> m_withoutClock;
    QMap<QString, int> m_over;
    QMap<QString, int> m_compared;
};

using Files = QMap<QString, QByteArray>;

Files filesIn(const QDir& folder)
{
    Files files;
    for (const QString& name : folder.entryList(QDir::Files))
        files.insert(name, contentOf(folder.filePath(name)));
    return files;
}
} // namespace

/// Generated programs of all series, compiled without warnings and run on the stand-in chip: what they set
/// must be what the page shows, and no step on the way may break a limit.
class FirmwareTest : public QObject
{
    Q_OBJECT

private slots:
    void runsAsShown_data() { pageRows(); }
    void runsAsShown()
    {
        QFETCH(QString, word);
        const PageFixture page(word);
        const QString stem = page.page->description().stem();
        QRandomGenerator random(static_cast<quint32>(page.model().series()));
        const QTemporaryDir base;
        QVector<Shown> shown;
        for (int design = 0; design < designsPerSeries(); ++design) {
            // From time to time from the start: a walk may stay long in one corner.
            if (design % 8 == 0)
                page.page->InitAllControl();
            if (design > 0)
                page.takeRandomSteps(12, random);
            shown += readPage(page);
            QVERIFY(firmware::generateDesign(page.model(), base.path(), design, stem));
        }
        QString errors;
        const QVector<firmware::Run> runs = firmware::run(base.path(), shown.size(), stem, word, errors);
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        QCOMPARE(runs.size(), shown.size());
        Tally tally;
        QStringList lines;
        for (int design = 0; design < shown.size(); ++design) {
            for (const QString& line : differences(shown[design], runs[design]))
                lines += QStringLiteral("design %1: %2").arg(design).arg(line);
            tally.add(shown[design], runs[design]);
        }
        tally.tell();
        m_table += "| ZN64%1 | `%2` | "_s.arg(word, stem) + tally.row(lines.size()) + " |\n"_s;
        QVERIFY2(lines.isEmpty(), qPrintable(lines.join(u'\n')));
        QVERIFY(tally.within() > 0);
    }

    /// The documentation shows the table of this very run.
    void tableIsThatOfTheDocumentation()
    {
        if (!qEnvironmentVariableIsEmpty("CLOCKWRIGHT_DESIGNS") || m_table.count(u'\n') < 24)
            QSKIP("the table tells of the usual run over all series");
        const QString made = QCoreApplication::applicationDirPath() + "/firmware-proof.md"_s;
        QVERIFY(writeFile(made, m_table.toUtf8()));
        QVERIFY2(contentOf(QStringLiteral(PROOF)).contains(m_table.toUtf8()),
                 qPrintable("of an older run is the table in " PROOF "; that of this one is "_s + made));
    }

    /// Nothing of an older file is looked at: a second run gives the same, or leaves what the user wrote.
    void replacesItsOwnFilesWhole_data() { pageRows(); }
    void replacesItsOwnFilesWhole()
    {
        QFETCH(QString, word);
        const PageFixture page(word);
        const QString stem = page.page->description().stem();
        const QTemporaryDir base;
        const auto generate = [&] {
            page.model().Set_GenerateCodeMode(MODE_USER_BUTTON);
            return page.model().GenerateCode(base.path(), base.path(), stem);
        };
        QVERIFY(generate());
        const Files first = filesIn(base.path());
        QCOMPARE(first.size(), 4);
        for (auto file = first.begin(); file != first.end(); ++file)
            QVERIFY(writeFile(base.filePath(file.key()), "int mine; [#pll]\n" + file.value()));
        const Files changed = filesIn(base.path());
        DialogAnswers answers(QStringList{"Cancel"_s, "Yes"_s, "Yes"_s, "Yes"_s, "Yes"_s});
        QVERIFY(!generate());
        QVERIFY(filesIn(base.path()) == changed);
        QVERIFY(generate());
        QVERIFY(filesIn(base.path()) == first);
        QCOMPARE(answers.shown().size(), 5);
    }

    /// The stand-in chip is no check if it accepts everything: one fault each in good code of some series.
    void findsFaults_data()
    {
        QTest::addColumn<QString>("steps"); // the series, then what is taken on its page
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("found");
        const auto row = [](const char* name, const char* steps, const char* from, const char* to,
                            const char* found) {
            QTest::newRow(name) << QString::fromUtf8(steps) << QString::fromUtf8(from)
                                << QString::fromUtf8(to) << QString::fromUtf8(found);
        };
        const char* const enable = "crm_clock_source_enable(CRM_CLOCK_SOURCE_%1, TRUE);";
        const QByteArray hext = QString::fromUtf8(enable).arg("HEXT"_s).toUtf8();
        const QByteArray pll = QString::fromUtf8(enable).arg("PLL"_s).toUtf8();
        const char* const pllFlag = "while(crm_flag_get(CRM_PLL_STABLE_FLAG) != SET)";
        row("pll without a wait", "G133", pllFlag, "if(FALSE)", "source that is not ready");
        row("hext without a wait", "G142", "while(crm_hext_stable_wait() == ERROR)", "if(FALSE)",
            "waits for");
        row("hext left off", "G150", hext.constData(), "", "waits for");
        row("pll set while it runs", "G120", "crm_pll_config(", (pll + " crm_pll_config(").constData(),
            "pll changed while it runs");
        row("switch before the pll", "P212", pll.constData(),
            (" crm_sysclk_switch(CRM_SCLK_PLL); " + pll).constData(), "source that is not ready");
        row("wrong range", "G110R", "RANGE_GT72MHZ", "RANGE_LE72MHZ", "wrong output range");
        row("wrong multiplier", "G125", "CRM_PLL_MULT_18", "CRM_PLL_MULT_17", "sclk: shown 144, is 136");
        row("wrong ns", "G171", "108, 1, CRM_PLL_FP_4", "109, 1, CRM_PLL_FP_4", "sclk: shown 216, is 218");
        row("input too slow", "D042 pllmode=flexible", "80, 1, CRM_PLL_FR_8", "160, 15, CRM_PLL_FR_1",
            "limit pll input");
        row("vco too fast", "G165", "crm_pll_config(CRM_PLL_SOURCE_HEXT, 144, 1, CRM_PLL_FP_6)",
            "crm_pll_config(CRM_PLL_SOURCE_HEXT, 192, 1, CRM_PLL_FP_8)", "limit vco");
        row("a wait cycle too few", "G142", "FLASH_WAIT_CYCLE_6", "FLASH_WAIT_CYCLE_5", "limit flash");
        row("a wait cycle too many", "G130", "FLASH_WAIT_CYCLE_3", "FLASH_WAIT_CYCLE_4", "without need");
        row("flash clock", "G152", "FLASH_CLOCK_DIV_3", "FLASH_CLOCK_DIV_2", "flash clock too fast");
        row("low voltage", "G190", "PWC_LDO_OUTPUT_1V3", "PWC_LDO_OUTPUT_1V2", "limit ldo");
        row("voltage without its clock", "G133", "crm_periph_clock_enable(CRM_PWC_PERIPH_CLOCK, TRUE);", "",
            "ldo without the clock of pwc");
        row("no step mode", "G114", "step_mode_enable(TRUE)", "step_mode_enable(FALSE)",
            "step mode does not fit");
        row("step mode left on", "G146", "step_mode_enable(FALSE)", "step_mode_enable(TRUE)",
            "step mode left on");
        row("no written step", "G110", "CRM_AHB_DIV_8", "CRM_AHB_DIV_4", "without a step");
        row("bus too fast on the way", "G150", "CRM_APB1_DIV_2", "CRM_APB1_DIV_1", "limit apb1");
        row("wrong divisor of a bus", "G166", "CRM_APB3_DIV_4", "CRM_APB3_DIV_8", "apb3: shown 48, is 24");
        row("divider of another bus", "G135", "CRM_APB1_DIV_1", "CRM_APB2_DIV_1", "implicit conversion");
        row("wrong divisor of usb", "TQ125 tousbswitch=enable", "CRM_USB_DIV_3", "CRM_USB_DIV_3_5",
            "usb: shown 48");
        row("pllu without a wait", "G167 tousbswitch=enable",
            "while(crm_flag_get(CRM_PLLU_STABLE_FLAG) == RESET)", "if(FALSE)",
            "usb on a source that is not ready");
        row("wrong source of the rtc", "P216 tortc=enable", "crm_ertc_clock_select(CRM_ERTC_CLOCK_LICK)",
            "crm_ertc_clock_select(CRM_ERTC_CLOCK_LEXT)", "rtc without a clock from lext");
        row("rtc left out", "H110R tortc=enable", "mx_rtc_clock_init();", "", "rtc: shown 40, is 0");
        row("call of another stem", "G174", "crm_reset();", "crm_reset(); crm_apb3_div_set(1);",
            "implicit declaration");
        row("a marker left", "H133", "system_clock_config();", "[#rtc hext]", "error");
        row("wrong crystal", "G110", "8000000) /*!< value of the high speed ex",
            "8100000) /*!< value of the high speed ex", "sclk: shown 192");
    }

    void findsFaults()
    {
        QFETCH(QString, steps);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, found);
        const QString word = steps.section(u' ', 0, 0);
        const PageFixture page(word);
        page.take(steps.section(u' ', 1));
        const QString stem = page.page->description().stem();
        const QTemporaryDir base;
        const Shown shown = readPage(page);
        for (int design : {0, 1})
            QVERIFY(firmware::generateDesign(page.model(), base.path(), design, stem));
        bool planted = false;
        const QDir folder(firmware::folderOf(base.path(), 1));
        for (const QString& name : folder.entryList(QDir::Files)) {
            QByteArray text = contentOf(folder.filePath(name));
            if (!planted && text.contains(from.toUtf8())) {
                planted = true;
                QVERIFY(writeFile(folder.filePath(name), text.replace(from.toUtf8(), to.toUtf8())));
            }
        }
        QVERIFY(planted);
        QString told;
        const auto runs = firmware::run(base.path(), 2, stem, word, told);
        if (told.isEmpty()) {
            QCOMPARE(differences(shown, runs[0]), QStringList());
            told = differences(shown, runs[1]).join(u'\n');
        }
        QVERIFY2(told.contains(found), qPrintable(told));
    }

private:
    QString m_table;
};

QTEST_MAIN(FirmwareTest)
#include "tst_firmware.moc"
