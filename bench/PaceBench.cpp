#include "Verdicts.h"

#include "prompter/view/ReadingFrame.h"
#include "prompter/view/ScriptView.h"
#include "reading/PrompterStatus.h"
#include "support/PacedSession.h"

#include <QApplication>
#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace tessaline;

/// How a text is set.
struct Setting {
    double font;
    int width; ///< of the prompter, in points
};

constexpr std::array settings{Setting{16, 450}, Setting{24, 450}, Setting{30, 450},
                              Setting{16, 800}, Setting{24, 800}, Setting{12, 600}};
constexpr std::array paces{100.0, 150.0, 200.0, 300.0};
constexpr std::array minutes{9.0, 12.0, 20.0};

/// A talk that is read in a prompter's view, frame by frame.
class Talk {
public:
    Talk(const QString& text, const ReadingOptions& options, const Setting& setting) {
        constexpr int marginsOfTheText = 20;
        paced.options = options;
        view.resize(setting.width - marginsOfTheText, 202);
        view.show();
        view.setReadingFrame(ReadingFrame::of(options));
        view.setFontSize(setting.font);
        paced.show(text);
        view.completeLayout();
        paced.session->updatePace();
    }

    /// Reads to the end.
    void read() {
        const double before = wordsRead();
        paced.play();
        std::vector<double> eachSecond;
        for (int frame = 1; view.scrollPosition() < view.maximumScrollPosition(); ++frame) {
            paced.showFrame();
            if (frame % 60 == 0) eachSecond.push_back(wordsRead());
        }
        words = wordsRead() - before;
        for (std::size_t i = halfMinute; i < eachSecond.size(); ++i) {
            if (eachSecond[i] >= eachSecond.back()) break; // what is left holds no words
            const double passed = eachSecond[i] - eachSecond[i - halfMinute];
            fewest = std::min(fewest, passed);
            most = std::max(most, passed);
        }
    }

    double seconds() const { return paced.now(); }
    double wordsPerMinute() const { return words / seconds() * 60; }
    double fewestInHalfAMinute() const { return fewest; }
    double mostInHalfAMinute() const { return most; }

private:
    static constexpr std::size_t halfMinute = 30;

    double wordsRead() const {
        PrompterStatus status;
        paced.session->tellProgress(status);
        return status.wordsRead;
    }

    PacedSession paced;
    ScriptView view{paced.session};
    double words = 0.0;
    double fewest = 1e9;
    double most = 0.0;
};

/// The table of the documentation, whose lines tools/bench does not take for verdicts.
class Table {
public:
    explicit Table(const QString& path) : file(path) { opened = file.open(QIODevice::WriteOnly); }
    bool isOpen() const { return opened; }

    void row(const QString& line) {
        std::printf("  %s\n", line.toUtf8().constData());
        file.write(line.toUtf8() + '\n');
    }

private:
    QFile file;
    bool opened = false;
};

/// Returns by how many hundredths the worst pace was missed, and writes all down.
double measurePaces(const QString& text, Table& table) {
    double worst = 0.0;
    table.row(u"| Promised | Font | Width | Kept | In thirty seconds, of the promised |"_s);
    table.row(u"| -------: | ---: | ----: | ---: | ---: |"_s);
    for (const double pace : paces) {
        for (const Setting& setting : settings) {
            ReadingOptions options;
            options.pace = PaceMode::words;
            options.wordsPerMinute = pace;
            Talk talk(text, options, setting);
            talk.read();
            worst = std::max(worst, std::abs(talk.wordsPerMinute() / pace - 1) * 100);
            table.row(u"| %1 | %2 | %3 | %4 | %5 to %6 of %7 |"_s.arg(pace)
                          .arg(setting.font)
                          .arg(setting.width)
                          .arg(talk.wordsPerMinute(), 0, 'f', 1)
                          .arg(talk.fewestInHalfAMinute(), 0, 'f', 1)
                          .arg(talk.mostInHalfAMinute(), 0, 'f', 1)
                          .arg(pace / 2));
        }
    }
    return worst;
}

double measureEnds(const QString& text, Table& table) {
    double worst = 0.0;
    table.row({});
    table.row(u"| Promised end | Font | Width | Reached after |"_s);
    table.row(u"| -----------: | ---: | ----: | ------------: |"_s);
    for (const double promised : minutes) {
        for (const Setting& setting : settings) {
            ReadingOptions options;
            options.pace = PaceMode::finish;
            options.finishMinutes = promised;
            Talk talk(text, options, setting);
            talk.read();
            worst = std::max(worst, std::abs(talk.seconds() / 60 / promised - 1) * 100);
            table.row(u"| %1 min | %2 | %3 | %4 min |"_s.arg(promised)
                          .arg(setting.font)
                          .arg(setting.width)
                          .arg(talk.seconds() / 60, 0, 'f', 2));
        }
    }
    return worst;
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication app(argc, argv);
    QFile talk(QStringLiteral(TESSALINE_TALK));
    Table table(u"build/bench/promised-and-kept.md"_s);
    if (!talk.open(QIODevice::ReadOnly) || !table.isOpen()) return 2;
    const QString text = QString::fromUtf8(talk.readAll());
    const double pace = measurePaces(text, table);
    const double end = measureEnds(text, table);
    Verdicts verdicts;
    verdicts.judge(u"A talk at promised words a minute, any font and width: off by at most"_s, pace,
                   1, "%");
    verdicts.judge(u"A talk with a promised end, any font and width: off by at most"_s, end, 1,
                   "%");
    return verdicts.exitStatus();
}
