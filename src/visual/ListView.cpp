#include "visual/ListView.h"

#include "visual/PropertyRows.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr std::int32_t InvalidPropertyValue = 380;

} // namespace

struct ListColumn::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Text">(&ListColumn::text_),
        rows::property<u"ToolTipText">(&ListColumn::toolTip_),
        rows::property<u"Width">(&ListColumn::width_).raisingUnless(rows::isNotNegative),
        rows::property<u"Alignment">(&ListColumn::alignment_),
    };
    static constexpr auto Effect = &ListColumn::tellChanged;
};

ListColumn::ListColumn(String text, double width, std::shared_ptr<const Event<>> changed)
    : text_(std::move(text)), width_(width), changed_(std::move(changed))
{
}

MemberTable ListColumn::members() const
{
    return rows::membersOf<Properties>();
}

void ListColumn::tellChanged()
{
    changed_->raise();
}

// One line a setter.
// clang-format off
void ListColumn::Text(String value) { rows::set<Properties, u"Text">(*this, std::move(value)); }
void ListColumn::ToolTipText(String value) { rows::set<Properties, u"ToolTipText">(*this, std::move(value)); }
void ListColumn::Width(double value) { rows::set<Properties, u"Width">(*this, value); }
void ListColumn::Alignment(phial::Alignment value) { rows::set<Properties, u"Alignment">(*this, value); }
// clang-format on

struct ListRow::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Title">(&ListRow::title_),
        rows::property<u"TitleShort">(&ListRow::titleShort_),
        rows::property<u"ToolTipText">(&ListRow::toolTip_),
        rows::property<u"Tag">(&ListRow::tag_).still(),
        rows::property<u"ForeColor">(&ListRow::foreColor_),
    };
    static constexpr auto Effect = &ListRow::tellChanged;
};

ListRow::ListRow(String title, std::shared_ptr<const Event<>> changed)
    : title_(std::move(title)), changed_(std::move(changed))
{
}

MemberTable ListRow::members() const
{
    return rows::membersOf<Properties>();
}

void ListRow::tellChanged()
{
    changed_->raise();
}

// One line a setter.
// clang-format off
void ListRow::Title(String value) { rows::set<Properties, u"Title">(*this, std::move(value)); }
void ListRow::TitleShort(String value) { rows::set<Properties, u"TitleShort">(*this, std::move(value)); }
void ListRow::ToolTipText(String value) { rows::set<Properties, u"ToolTipText">(*this, std::move(value)); }
void ListRow::Tag(String value) { rows::set<Properties, u"Tag">(*this, std::move(value)); }
void ListRow::ForeColor(Colour value) { rows::set<Properties, u"ForeColor">(*this, value); }
// clang-format on

void ListRow::checkColumn(std::int32_t column)
{
    if (column < 1 || column > MostColumns) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
}

String ListRow::Cell(std::int32_t column) const
{
    checkColumn(column);
    if (column == 1) {
        return title_;
    }
    const auto at = static_cast<std::size_t>(column - 2);
    return at < further_.size() ? further_[at] : String();
}

void ListRow::Cell(std::int32_t column, String value)
{
    checkColumn(column);
    if (column == 1) {
        Title(std::move(value));
        return;
    }
    const auto at = static_cast<std::size_t>(column - 2);
    further_.resize(std::max(further_.size(), at + 1));
    further_[at] = std::move(value);
    changed_->raise();
}

String ListRow::Spoken(std::int32_t column) const
{
    checkColumn(column);
    const auto at = static_cast<std::size_t>(column - 1);
    return at < spoken_.size() ? spoken_[at] : String();
}

void ListRow::Spoken(std::int32_t column, String value)
{
    checkColumn(column);
    const auto at = static_cast<std::size_t>(column - 1);
    spoken_.resize(std::max(spoken_.size(), at + 1));
    spoken_[at] = std::move(value);
    changed_->raise();
}

struct ListView::Properties {
    static constexpr rows::Table Table{
        rows::readOnly<u"COLUMNHEADERS">(&ListView::columnsByName),
        rows::readOnly<u"ITEMS">(&ListView::rowsByName),
        rows::property<u"ListIndex">(&ListView::ListIndex, &ListView::ListIndex),
        rows::font<u"Font">(&ListView::font_),
        rows::property<u"ForeColor">(&ListView::foreColor_),
        rows::property<u"BackColor">(&ListView::backColor_),
    };
};

ListView::ListView() : frame_(*this)
{
    frame_.canFocus(true);
    rows::start<Properties>(*this);
    changes_ += columns_->changed().connect([this] { frame_.report(ControlAspect::Items); });
    changes_ += rows_->changed().connect([this] { frame_.report(ControlAspect::Items); });
}

MemberTable ListView::members() const
{
    return rows::membersOf<Properties>();
}

std::int32_t ListView::ListIndex() const
{
    const auto chosen = chosen_.lock();
    const auto found = std::ranges::find(*rows_, chosen);
    return chosen && found != rows_->end() ? static_cast<std::int32_t>(found - rows_->begin()) + 1 : 0;
}

void ListView::ListIndex(std::int32_t value)
{
    if (value < 0 || value > rows_->Count()) {
        throw RuntimeError(InvalidPropertyValue, u"Invalid property value");
    }
    if (value == ListIndex()) {
        return;
    }
    chosen_ = value == 0 ? nullptr : rows_->Item(value);
    frame_.report(ControlAspect::Selection);
    Click.raise();
}

void ListView::inputChoice(std::int32_t row)
{
    chosen_ = rows_->Item(row);
    Click.raise();
}

// One line a setter.
// clang-format off
void ListView::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void ListView::ForeColor(Colour value) { rows::set<Properties, u"ForeColor">(*this, value); }
void ListView::BackColor(Colour value) { rows::set<Properties, u"BackColor">(*this, value); }
// clang-format on

} // namespace phial
