#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"

namespace horavex {

/// Files that stay as they were when they were first asked for, once they are held: who calculates
/// for thousands of places asks for the same ones hundreds of thousand times. Their number must be
/// bounded. A write or a delete through it ends the hold.
class HeldFiles : public Files {
public:
    /// files: of the system; it outlives this.
    explicit HeldFiles(Files& files) : files_(files) {}

    /// From now on. Before, every question goes to the system.
    void Hold() { isHolding_ = true; }

    /// A file larger than kLargestTable is not kept.
    std::unique_ptr<OpenFile> OpenForReading(const std::string& path) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
    void WriteWhole(const std::string& path, ByteView bytes) override;
    void Delete(const std::string& path) override;
    bool Exists(const std::string& path) override;
    std::string StampOf(const std::string& path) override;
    std::vector<std::string> List(const std::string& folder) override;

private:
    /// By path.
    struct Answers {
        std::map<std::string, std::shared_ptr<const Bytes>> contents;
        std::map<std::string, bool> there;
        std::map<std::string, std::string> stamps;
        std::map<std::string, std::vector<std::string>> names;
    };

    void Release();

    Files& files_;
    bool isHolding_ = false;
    Answers answers_;
};

}  // namespace horavex
