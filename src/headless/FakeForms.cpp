#include "headless/FakeForms.h"

#include "core/RuntimeError.h"

namespace phial::headless
{

namespace
{

class Field : public CoreFormField
{
public:
    Field(String name, String text) : name_(std::move(name)), text_(std::move(text)) {}

    String Name() const override { return name_; }
    String Text() const override { return text_; }
    void Text(StringView pText) override { text_ = pText; }

private:
    String name_;
    String text_;
};

class Fields : public CoreFormFields
{
public:
    std::int32_t Count() const override { return static_cast<std::int32_t>(fields_.size()); }
    CoreFormField& Item(std::int32_t pIndex) override
    {
        if (pIndex < 1 || pIndex > Count()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return fields_[static_cast<std::size_t>(pIndex - 1)];
    }

    void add(const String& name, const String& text) { fields_.emplace_back(name, text); }
    void clear() { fields_.clear(); }

    std::vector<String> texts() const
    {
        std::vector<String> texts;
        for (const Field& field : fields_) {
            texts.push_back(field.Text());
        }
        return texts;
    }

private:
    std::vector<Field> fields_;
};

} // namespace

class FakeForms::Document : public CoreFormDocument
{
public:
    explicit Document(FakeForms& forms) : forms_(forms) {}

    bool Load(StringView pPath) override
    {
        const auto form = forms_.forms_.find(upperCase(pPath));
        if (form == forms_.forms_.end()) {
            return false;
        }
        path_ = pPath;
        fields_.clear();
        for (const auto& [name, text] : form->second) {
            fields_.add(name, text);
        }
        return true;
    }

    CoreFormFields& Fields(std::int32_t pPage) override
    {
        if (path_.empty() || pPage != 1) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return fields_;
    }

    bool Print(std::int32_t pCopies) override
    {
        if (forms_.printAnswer_) {
            forms_.printed_.push_back({path_, pCopies, fields_.texts()});
        }
        return forms_.printAnswer_;
    }

private:
    FakeForms& forms_;
    String path_;
    headless::Fields fields_;
};

void FakeForms::add(StringView path, NamedTexts fields)
{
    forms_.insert_or_assign(upperCase(path), std::move(fields));
}

std::shared_ptr<CoreFormDocument> FakeForms::newDocument()
{
    return std::make_shared<Document>(*this);
}

} // namespace phial::headless
