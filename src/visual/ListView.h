#pragma once

#include "core/Colour.h"
#include "visual/Alignment.h"
#include "visual/Control.h"
#include "visual/PartList.h"
#include "visual/SharedFont.h"

#include <vector>

namespace phial
{

/// A column of a list view.
class ListColumn final : public Object
{
public:
    static constexpr StringView ListName = u"ColumnHeaders";

    /// The width in pixels; 0 for what the other columns leave.
    ListColumn(String text, double width, std::shared_ptr<const Event<>> changed);

    String Text() const { return text_; }
    void Text(String value);
    String ToolTipText() const { return toolTip_; }
    void ToolTipText(String value);
    double Width() const { return width_; }
    /// Raises 5 below 0.
    void Width(double value);
    phial::Alignment Alignment() const { return alignment_; }
    void Alignment(phial::Alignment value);

    StringView typeName() const override { return u"ColumnHeader"; }
    MemberTable members() const override;

private:
    struct Properties;
    void tellChanged();

    String text_;
    String toolTip_;
    double width_;
    phial::Alignment alignment_ = phial::Alignment::Left;
    std::shared_ptr<const Event<>> changed_; ///< of the list's columns
};

/// A row of a list view: its title stands in the first column, further texts in those behind.
class ListRow final : public Object
{
public:
    static constexpr StringView ListName = u"ListItems";

    ListRow(String title, std::shared_ptr<const Event<>> changed);

    String Title() const { return title_; }
    void Title(String value);
    /// Shown where the first column has no room for the title; empty for none.
    String TitleShort() const { return titleShort_; }
    void TitleShort(String value);
    String ToolTipText() const { return toolTip_; }
    void ToolTipText(String value);
    String Tag() const { return tag_; }
    void Tag(String value);
    /// The slot of window text, as at first, stands for the list's own colour.
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour value);
    /// The text in a column, which counts from 1 (the title) to MostColumns; empty where none was set. Raises
    /// 9 outside.
    static constexpr std::int32_t MostColumns = 100;
    String Cell(std::int32_t column) const;
    void Cell(std::int32_t column, String value);

    /// What a screen reader says in place of a column's text, such as a formula in words; empty for the text.
    /// Raises 9 outside.
    String Spoken(std::int32_t column) const;
    void Spoken(std::int32_t column, String value);

    StringView typeName() const override { return u"ListItem"; }
    MemberTable members() const override;

private:
    struct Properties;
    void tellChanged();
    static void checkColumn(std::int32_t column);

    String title_;
    String titleShort_;
    String toolTip_;
    String tag_;
    Colour foreColor_ = SystemColour::WindowText;
    std::vector<String> further_;            ///< from the second column on
    std::vector<String> spoken_;             ///< from the first column on
    std::shared_ptr<const Event<>> changed_; ///< of the list's rows
};

/// A list with columns and their headers; the toolkit's own widget. Columns and rows count from 1.
class ListView final : public Control
{
public:
    ListView();

    const std::shared_ptr<PartList<ListColumn>>& COLUMNHEADERS() const { return columns_; }
    const std::shared_ptr<PartList<ListRow>>& ITEMS() const { return rows_; }
    /// The chosen row, 0 for none; setting another one raises Click. Outside raises 380. It ends with the
    /// rows' going.
    std::int32_t ListIndex() const;
    void ListIndex(std::int32_t value);
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour value);
    Colour BackColor() const { return backColor_; }
    void BackColor(Colour value);

    Event<> Click;
    Event<> DblClick;
    /// The header of a column was pressed: its number.
    Event<std::int32_t> ColumnClick;
    Event<> GotFocus;
    Event<> LostFocus;
    Event<KeyEvent&> KeyDown;

    /// The user has chosen a row (again: raises Click all the same) or pressed a header.
    void inputChoice(std::int32_t row);
    void inputColumn(std::int32_t column) { ColumnClick.raise(column); }

    StringView typeName() const override { return u"ListView"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    void doubleClick() override { DblClick.raise(); }
    void keyDown(KeyEvent& event) override { KeyDown.raise(event); }
    void gotFocus() override { GotFocus.raise(); }
    void lostFocus() override { LostFocus.raise(); }

private:
    struct Properties;
    std::shared_ptr<PartList<ListColumn>> columnsByName() const { return columns_; }
    std::shared_ptr<PartList<ListRow>> rowsByName() const { return rows_; }

    ControlFrame frame_;
    std::shared_ptr<PartList<ListColumn>> columns_ = std::make_shared<PartList<ListColumn>>();
    std::shared_ptr<PartList<ListRow>> rows_ = std::make_shared<PartList<ListRow>>();
    std::weak_ptr<ListRow> chosen_;
    SharedFont font_;
    Colour foreColor_ = SystemColour::WindowText;
    Colour backColor_ = SystemColour::Window;
    Connections changes_;
};

} // namespace phial
