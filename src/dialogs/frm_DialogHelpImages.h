#pragma once

#include "core/CoreParameters.h"
#include "dialogs/HelpBook.h"
#include "dialogs/HelpPages.h"
#include "dialogs/PageSegments.h"
#include "dialogs/PageSlide.h"
#include "dialogs/PageStrip.h"
#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/Label.h"
#include "visual/Timer.h"
#include "visual/ctl_Title.h"

#include <map>
#include <memory>

namespace phial
{

/// A folder of pictures as a book: swiped or turned by buttons and keys, with a strip that shows how far one
/// is. A menu page leads by its map's colours into sub-folders and is come back to behind their last page.
/// See HelpBook for what a folder holds. A page that is larger than its place can be enlarged by two fingers
/// or the wheel.
///
/// The arrow keys, PageUp and PageDown turn pages, Home and End go to the first and last one, 1 to 6 open a
/// menu's chapters, Escape closes.
/// With the option "DELETE" a page's file can be deleted. An object serves for one dialog.
class frm_DialogHelpImages
{
public:
    frm_DialogHelpImages();

    /// Modal: returns when the user has closed the window.
    void Show();
    /// Puts all texts in the language in force, and the pages.
    void TRANSLATE();

    // What is set before it is shown.
    /// In place of the usual title; empty for that.
    const String& TitleText() const { return title_; }
    void TitleText(String value) { title_ = std::move(value); }
    /// Empty for the program's own help book, "Hilfe\" in the folder of its data.
    const String& Folder() const;
    void Folder(String value) { folder_ = std::move(value); }
    /// "DELETE" with the value True lets the user delete pages; "CHAPTER" is a sub-folder to begin with, from
    /// which the way back leads to the book's menu.
    CoreParameters& More() { return more_; }

    // What is shown.
    const CoreStringList& Files() const { return book_.Files(); }
    std::int32_t Page() const { return book_.Page(); }
    bool HasMenu() const { return book_.HasMenu(); }
    String MenuFolder() const { return book_.MenuFolder(); }

    Form& form() { return *form_; }

private:
    void connect();
    void connectPointer(PictureBox& box);
    void load();
    void fitScreen();
    void layOut();
    void showBook();
    void makeStrip();
    void showPage();
    String fileInView() const;
    void showPlace();
    void handOnKeyboard();
    void speakPage();

    void turn(PageTurn turn);
    void goToPage(std::int32_t page);
    void goToMenu();
    void slide(PageTurn turn);
    void tick();
    void finishSlide();
    void take(PageTurn turn);

    void press(std::int32_t touch, PixelPoint at);
    void move(std::int32_t touch, PixelPoint at);
    void letGo(std::int32_t touch, PixelPoint at, bool isCancelled);
    void pinch(std::int32_t touch, PixelPoint at);
    void tap(PixelPoint at);
    void enterFolder();
    void wheel(WheelEvent& event);

    void keyDown(KeyEvent& event);
    bool turnsPage(const KeyEvent& event);
    bool opensChapter(const KeyEvent& event);
    void deletePage();
    void printPage();

    String title_;
    String folder_;
    CoreParameters more_;

    DesignedForm form_;
    HelpBook book_;
    HelpPages pages_;
    PageSlide slide_;
    PageStrip strip_;
    ControlArray<Label> segments_;
    std::shared_ptr<PageSegments> stripView_;
    std::shared_ptr<ctl_Button> back_;
    std::shared_ptr<ctl_Button> next_;
    std::shared_ptr<ctl_Button> menu_;
    std::shared_ptr<ctl_Button> delete_;
    std::shared_ptr<Timer> animation_;
    std::map<std::int32_t, PixelPoint> touches_; ///< by their numbers
    PixelPoint pressedAt_;
    bool isStill_ = false; ///< the press has not moved
    bool isLoaded_ = false;
};

} // namespace phial
