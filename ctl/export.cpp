#include <memory>

#include "ctl/basis.h"
#include "ctl/calculation.h"
#include "ctl/exported_year.h"
#include "ctl/year_json.h"
#include "engine/current_year.h"

namespace horavex {

namespace {

struct ExportOptions {
    YearCall call;
    FileForm form;
    std::string output;
};

void Tell(const Session& session, const Json& head, const std::string& text) {
    if (session.json) {
        ObjectText object(head);
        AddYearBasis(object);
        session.PrintJson(object.Text());
    } else {
        session.Print(nullptr, text);
    }
}

void Write(Session& session, const ExportOptions& options) {
    WriteYearFile(options.output, options.form);
    if (options.output != kStandardOutput) {
        Tell(session, {{"file", options.output}, {"days", DaysOfYear()}},
             options.output + ": " + std::to_string(DaysOfYear()) + " days\n" +
                 BasisText(DateSerial(CurrentYear, 1, 1)));
    }
}

void RunExport(Session& session, const ExportOptions& options) {
    if (session.json && options.output == kStandardOutput) {
        RefuseUsage("--json and the timetable cannot both go to the standard output");
    }
    TakeExportCall(session, options.call, options.form);
    Calculate(session, options.call.year);
    if (session.status == kDone) {
        Write(session, options);
    } else {
        Tell(session, {{"file", nullptr}, {"days", 0}}, "");
    }
}

}  // namespace

void AddExportCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "export", "A year's timetable as a file");
    auto options = std::make_shared<ExportOptions>();
    AddYearCallOptions(*command, options->call);
    command->add_option("--format", options->form.format, "text, csv, json, ics, html or pdf")
        ->check(CLI::IsMember({"text", "csv", "json", "ics", "html", "pdf"}))
        ->required();
    command
        ->add_option("--output", options->output,
                     "The file or pipe to write; - for standard output")
        ->type_name("FILE")
        ->required();
    AddFileFormOptions(*command, options->form);
    command->callback([&session, options] { RunExport(session, *options); });
}

}  // namespace horavex
