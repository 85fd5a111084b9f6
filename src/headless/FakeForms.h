#pragma once

#include "core/CoreFormDocument.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace phial::headless
{

/// A page of a form document that was printed: the texts of its fields in order.
struct PrintedForm {
    String path;
    std::int32_t copies = 0;
    std::vector<String> texts;
};

/// Form files that exist in memory only, and a record of what was printed.
class FakeForms
{
public:
    using NamedTexts = std::vector<std::pair<String, String>>;

    /// Puts a form of one page there: names and texts of its fields. Paths disregard case.
    void add(StringView path, NamedTexts fields);
    /// What `Print` answers from now on; at first true.
    void printAnswer(bool answer) { printAnswer_ = answer; }
    const std::vector<PrintedForm>& printed() const { return printed_; }

    /// A document over these forms, which must outlive it.
    std::shared_ptr<CoreFormDocument> newDocument();

private:
    class Document;

    std::map<String, NamedTexts> forms_;
    bool printAnswer_ = true;
    std::vector<PrintedForm> printed_;
};

} // namespace phial::headless
