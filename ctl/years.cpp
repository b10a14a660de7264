#include <algorithm>
#include <filesystem>
#include <memory>
#include <thread>

#include "ctl/document_fonts.h"
#include "ctl/line_answer.h"
#include "ctl/line_work.h"
#include "ctl/place_lines.h"
#include "ctl/progress_line.h"
#include "ctl/years_output.h"
#include "engine/angle.h"
#include "linux/worker_processes.h"

namespace horavex {

namespace {

constexpr int kMostJobs = 1024;

struct YearsOptions {
    std::string from;
    std::optional<int> year;
    std::string output = kStandardOutput;
    std::size_t jobs = std::max(1U, std::thread::hardware_concurrency());
    bool progress = false;
    YearsForm form;
};

void TakeOutput(const Session& session, YearsOptions& options) {
    const bool isStandard = options.output == kStandardOutput;
    std::error_code error;
    if (!isStandard && std::filesystem::is_directory(options.output, error)) {
        options.form.folder = options.output;
    }
    const bool isFolder = !options.form.folder.empty();
    const std::string& format = options.form.file.format;
    if (isFolder && format == kJsonLines) {
        RefuseUsage("--format jsonl goes into one file, and --output names a folder");
    }
    if (!isFolder && format != kJsonLines && format != "csv") {
        RefuseUsage("--format " + format +
                    " makes a file for each line, and --output names no folder that is there");
    }
    if (isStandard && (session.json || options.form.resume)) {
        RefuseUsage(std::string(session.json ? "--json" : "--resume") +
                    " wants an --output beside the standard one");
    }
}

WholeRecords RecordsThere(const YearsOptions& options) {
    if (!options.form.resume || !options.form.folder.empty()) {
        return {};
    }
    return options.form.file.format == kJsonLines ? WholeJsonLines(options.output)
                                                  : WholeCsvRecords(options.output);
}

/// One run over all lines.
class YearsRun {
public:
    YearsRun(const Session& session, const YearsOptions& options)
        : session_(session),
          options_(options),
          lines_(options.from),
          calls_(lines_.Columns(), options.year),
          there_(RecordsThere(options)),
          output_(IsOneFile() ? options.output : "", there_.bytes),
          progress_(options.progress) {}

    /// Until no line is left, or the standard output takes no more.
    LineCounts Run() {
        bool goesOn = !HasRecords() || there_.bytes > 0 ||
                      output_.Append(HeadOfRecords(options_.form.file.format));
        session_.platform.HoldData();
        Session own{session_.platform};
        LineWork work(own, options_.form, calls_);
        WorkerProcesses workers(options_.jobs,
                                [&work](const std::string& line) { return work.Answer(line); });
        while (goesOn && AskAhead(workers)) {
            goesOn = Take(workers.TakeAnswer());
            progress_.Tell(counts_);
        }
        progress_.End(counts_);
        return counts_;
    }

private:
    bool HasRecords() const { return options_.form.folder.empty(); }
    bool IsOneFile() const { return HasRecords() && options_.output != kStandardOutput; }

    /// False where no line is left.
    bool AskAhead(WorkerProcesses& workers) {
        while (!workers.IsFull()) {
            const auto line = lines_.Next();
            if (!line) {
                break;
            }
            const std::string number = std::to_string(line->number);
            // As many lines as records are there, the refused ones apart, stand there.
            const bool isThere = asked_.size() < there_.count;
            asked_.push_back(number);
            workers.Ask(PackedRequest({number, isThere, line->text}));
        }
        return !asked_.empty();
    }

    bool Take(const std::string& packed) {
        const LineAnswer answer = UnpackedAnswer(packed);
        const std::string number = asked_.front();
        asked_.pop_front();
        Count(answer.end);
        if (answer.end != LineEnd::kWhole || !answer.told.empty()) {
            progress_.Clear();
            Complain("line " + number + ": " + std::string(answer.told));
        }
        if (there_.count > 0 && !answer.record.empty()) {
            --there_.count;
            return true;
        }
        return output_.Append(answer.record);
    }

    void Count(LineEnd end) {
        ++counts_.lines;
        counts_.gaveUp += end == LineEnd::kWithoutTable ? 1 : 0;
        counts_.refused += end == LineEnd::kRefused ? 1 : 0;
    }

    const Session& session_;
    const YearsOptions& options_;
    PlaceLines lines_;
    LineCalls calls_;
    WholeRecords there_;  // the count of those that no line has come up for yet
    YearsOutput output_;
    ProgressLine progress_;
    std::deque<std::string> asked_;  // numbers of the lines whose answers are to come
    LineCounts counts_;
};

void RunYears(Session& session, YearsOptions options) {
    TakeOutput(session, options);
    if (options.form.file.format == "pdf") {
        TakeDocumentFonts();
    }
    SetUndefinedAngleHandler(nullptr);  // it ends a line, not the run
    const LineCounts counts = YearsRun(session, options).Run();
    if (counts.gaveUp > 0 || counts.refused > 0) {
        session.status = kGaveUp;
    }
    if (options.output != kStandardOutput) {
        session.Print({{"output", options.output},
                       {"lines", counts.lines},
                       {"gaveUp", counts.gaveUp},
                       {"passedOver", counts.refused}},
                      options.output + ": " + TextOf(counts) + "\n");
    }
}

void AddOutputOptions(CLI::App& command, YearsOptions& options) {
    command
        .add_option("--format", options.form.file.format,
                    "jsonl or csv, one after the other; csv, text, json, ics, html or pdf, a file "
                    "for each line")
        ->check(CLI::IsMember({kJsonLines, "csv", "text", "json", "ics", "html", "pdf"}));
    command
        .add_option("--output", options.output,
                    "The file to write, or a folder for a file for each line; - for standard "
                    "output, as without it")
        ->type_name("FILE");
    AddFileFormOptions(command, options.form.file);
    command.add_flag("--resume", options.form.resume,
                     "Go on behind what a run before has written whole");
}

}  // namespace

void AddYearsCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "years", "The years of many places, on all cores");
    auto options = std::make_shared<YearsOptions>();
    options->form.file.format = kJsonLines;
    command
        ->add_option("--from", options->from,
                     "Places and methods: CSV with a head, or JSON lines, by the names of the "
                     "options of year; - for standard input")
        ->type_name("FILE")
        ->required();
    command->add_option("--year", options->year, "Gregorian year of the lines that tell none")
        ->check(CLI::Range(1, 9999));
    AddOutputOptions(*command, *options);
    command
        ->add_option("--jobs", options->jobs, "How many processes calculate; all cores without it")
        ->check(CLI::Range(1, kMostJobs));
    command->add_flag("--progress", options->progress,
                      "Tell the progress on standard error even where that is no terminal");
    command->callback([&session, options] { RunYears(session, *options); });
}

}  // namespace horavex
