#include "fuzz/fuzz.h"

#include "testdata.h"

#include <QApplication>
#include <QDir>

#include <csignal>
#include <cstdio>
#include <ctime>
#include <memory>
#include <unistd.h>

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr double MostSeconds = 10;
#else
constexpr double MostSeconds = 1;
#endif
constexpr int CaseOfCorpus = -1;

volatile std::sig_atomic_t currentCase = CaseOfCorpus;

// A case that never ends.
void tellCase(int)
{
    char line[] = "stuck in case 0000000000\n";
    for (int at = int(sizeof line) - 3, rest = currentCase; rest > 0; rest /= 10)
        line[at--] = char('0' + rest % 10);
    if (write(STDERR_FILENO, line, sizeof line - 1) > 0)
        _exit(2);
}

double processorSeconds()
{
    std::timespec now;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

struct Kind
{
    std::unique_ptr<Subject> subject;
    QList<QByteArray> corpus;
    int cases = 0;
    double slowest = 0;
    int slowestCase = CaseOfCorpus;
};

bool passes(Kind& kind, const QByteArray& input, QRandomGenerator& random)
{
    alarm(120);
    const double start = processorSeconds();
    Fault fault = kind.subject->run(input, random);
    const double seconds = processorSeconds() - start;
    ++kind.cases;
    if (seconds > kind.slowest) {
        kind.slowest = seconds;
        kind.slowestCase = currentCase;
    }
    if (fault.isEmpty() && seconds > MostSeconds)
        fault = QStringLiteral("took %1 s").arg(seconds);
    if (fault.isEmpty())
        return true;
    std::fprintf(stderr, "case %d: %s\nThe input is in fuzz-fault.%s\n", int(currentCase), qPrintable(fault),
                 kind.subject->suffix());
    writeFile(QStringLiteral("fuzz-fault.") + QLatin1String(kind.subject->suffix()), input);
    return false;
}

bool runCorpus(Kind& kind)
{
    const QDir folder(QStringLiteral(CORPUS));
    const QStringList pattern{QStringLiteral("*.") + QLatin1String(kind.subject->suffix())};
    for (const QString& name : folder.entryList(pattern, QDir::Files, QDir::Name)) {
        kind.corpus += contentOf(folder.filePath(name));
        QRandomGenerator random(1);
        if (!passes(kind, kind.corpus.constLast(), random)) {
            std::fprintf(stderr, "corpus file %s\n", qPrintable(name));
            return false;
        }
    }
    return !kind.corpus.isEmpty();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const int cases = argc > 1 ? std::atoi(argv[1]) : 2000;
    const int first = argc > 2 ? std::atoi(argv[2]) : 0;
    std::signal(SIGALRM, tellCase);
    Kind kinds[3];
    kinds[0].subject.reset(newDesignSubject());
    kinds[1].subject.reset(newListSubject());
    kinds[2].subject.reset(newSectionSubject());
    for (Kind& kind : kinds)
        if (!runCorpus(kind))
            return 1;
    for (int number = first; number < first + cases; ++number) {
        currentCase = number;
        QRandomGenerator random{quint32(number)};
        Kind& kind = kinds[random.bounded(3)];
        const QByteArray base = kind.corpus.at(random.bounded(kind.corpus.size()));
        if (!passes(kind, kind.subject->input(base, random), random))
            return 1;
        // Where a sanitizer ends the program, this tells about where.
        if ((number + 1) % 500 == 0)
            std::fprintf(stderr, "%d\n", number + 1);
    }
    for (const Kind& kind : kinds)
        std::printf("%s: %d cases, the slowest took %.0f ms (case %d)\n", kind.subject->suffix(), kind.cases,
                    kind.slowest * 1000, kind.slowestCase);
    return 0;
}
