#include "dialogs/frm_DialogHelpImages.h"

#include "app/FormTexts.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreDialogs.h"
#include "core/CoreDisplay.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/CoreTheme.h"
#include "core/CoreTiming.h"
#include "core/SessionState.h"
#include "dialogs/DialogHelpImagesDesign.h"
#include "dialogs/HelpPrint.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace help_design = dialog_help_images_design;

namespace
{

constexpr std::int32_t SlideInterval = 10; // milliseconds
constexpr StringView HelpFolder = u"Hilfe\\";
constexpr double TapReach = 4; // pixels; a finger is never quite still
constexpr double WheelStep = 1.25;

double now()
{
    return coreRoot().CoreTiming().Now();
}

double distance(PixelPoint one, PixelPoint other)
{
    return std::hypot(one.x - other.x, one.y - other.y);
}

PixelPoint middle(PixelPoint one, PixelPoint other)
{
    return {(one.x + other.x) / 2, (one.y + other.y) / 2};
}

bool isLeft(const PointerEvent& event)
{
    return (static_cast<std::int32_t>(event.Button) & static_cast<std::int32_t>(PointerButton::Left)) != 0;
}

} // namespace

frm_DialogHelpImages::frm_DialogHelpImages()
    : form_(help_design::Design), pages_(*form_, u"pic_Viewer", u"pic_ViewHolder"),
      segments_(*form_, u"bar_Progress"), stripView_(form_->control<PageSegments>(u"pic_Strip")),
      back_(form_->control<ctl_Button>(u"but_Back")), next_(form_->control<ctl_Button>(u"but_Next")),
      menu_(form_->control<ctl_Button>(u"but_Menu")), delete_(form_->control<ctl_Button>(u"but_Delete")),
      animation_(std::make_shared<Timer>(u"tmr_Animation", SlideInterval))
{
    segments_.adopt();
    form_->addComponent(animation_);
    form_->leastSize(help_design::Least);
    connect();
    TRANSLATE();
}

void frm_DialogHelpImages::Show()
{
    form_->Show(FormShow::Modal);
}

const String& frm_DialogHelpImages::Folder() const
{
    return isLoaded_ ? book_.Folder() : folder_;
}

void frm_DialogHelpImages::connect()
{
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->Resize, [this] { layOut(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->KeyDown, [this](KeyEvent& event) { keyDown(event); });
    form_.on(form_->control<ctl_Title>(u"bar_Header")->CLOSE, [this] { form_->Unload(); });
    form_.press(u"but_Back", [this] { turn(PageTurn::Back); });
    form_.press(u"but_Next", [this] { turn(PageTurn::Next); });
    form_.press(u"but_Menu", [this] { goToMenu(); });
    form_.press(u"but_Delete", [this] { deletePage(); });
    form_.command(u"ctl_CmdBar1", help_design::Print, [this] { printPage(); });
    form_.on(animation_->Tick, [this] { tick(); });
    form_.on(pages_.FAILED, [this] { showPlace(); });
    segments_.connectEach([this](Label& segment, std::int32_t index) {
        return segment.Click.connect([this, index] { goToPage(strip_.pageOf(index)); });
    });
    connectPointer(*form_->control<PictureBox>(u"pic_ViewHolder"));
    for (std::int32_t index = 0; index < 3; ++index) {
        connectPointer(*form_->control<PictureBox>(u"pic_Viewer", index));
    }
}

/// The pages and the view behind them are one field to the hand.
void frm_DialogHelpImages::connectPointer(PictureBox& box)
{
    const bool isPage = box.Index() >= 0;
    const auto at = [&box, isPage](const PointerEvent& event) {
        return isPage ? HelpPages::inView(box, event) : PixelPoint{event.X, event.Y};
    };
    form_.on(box.MouseDown, [this, at](const PointerEvent& event) {
        if (isLeft(event)) {
            press(event.Touch, at(event));
        }
    });
    form_.on(box.MouseMove, [this, at](const PointerEvent& event) { move(event.Touch, at(event)); });
    form_.on(box.MouseUp,
             [this, at](const PointerEvent& event) { letGo(event.Touch, at(event), event.isCancelled); });
    form_.on(box.MouseWheel, [this](WheelEvent& event) { wheel(event); });
}

void frm_DialogHelpImages::TRANSLATE()
{
    translateForm(form_);
    if (!title_.empty()) {
        form_->control<ctl_Title>(u"bar_Header")->Title(title_);
    }
    if (isLoaded_) {
        finishSlide();
        pages_.forget();
        book_.reload();
        showBook();
    }
}

void frm_DialogHelpImages::load()
{
    if (!title_.empty()) {
        form_->control<ctl_Title>(u"bar_Header")->Title(title_);
    }
    isLoaded_ = true;
    fitScreen();
    book_.openBook(folder_.empty() ? QVAPP()->URL()->DATAAPP() + String(HelpFolder) : folder_);
    if (const String chapter = more_.Get(u"CHAPTER").toText(); !chapter.empty()) {
        book_.openChapter(chapter);
    }
    const PixelSize view = pages_.viewSize();
    form_->control<PictureBox>(u"pic_Viewer", 3)->frame().pixelRectangle({0, 0, view.width, view.height});
    showBook();
    handOnKeyboard();
}

/// A screen, or what the zoom leaves of it, may be smaller than the design.
void frm_DialogHelpImages::fitScreen()
{
    constexpr PixelSize Frame{16, 36}; // about what desktops put around a window
    VisualHost& host = visualHost();
    const auto opener = host.forms().ActiveForm();
    const PixelRectangle screen = opener ? host.screen().of(*opener) : host.screen().first();
    const PixelSize inner = form_->innerSize();
    const PixelSize fitting{std::min(inner.width, (screen.width - Frame.width) / form_->Zoom()),
                            std::min(inner.height, (screen.height - Frame.height) / form_->Zoom())};
    if (!screen.isEmpty() && fitting != inner) {
        form_->innerSize(fitting);
    }
}

/// Everything keeps its distance from the edges; the buttons share what a narrow window leaves them.
void frm_DialogHelpImages::layOut()
{
    using namespace help_design;
    const PixelSize inner = form_->innerSize();
    const double buttonTop = inner.height - BarHeight + (BarHeight - ButtonHeight) / 2;
    const double stripTop = inner.height - BarHeight - StripHeight - StripGap;
    const double room = inner.width - 2 * Margin - 4 * ButtonGap;
    const double width = std::max(1.0, std::min(ButtonWidth, room / 5));
    double left = Margin;
    for (const auto& button : {back_, menu_, delete_}) {
        button->frame().pixelRectangle({left, buttonTop, width, ButtonHeight});
        left += width + ButtonGap;
    }
    const double nextLeft = inner.width - Margin - width;
    next_->frame().pixelRectangle({nextLeft, buttonTop, width, ButtonHeight});
    form_->control<ctl_CmdBar>(u"ctl_CmdBar1")
        ->frame()
        .pixelRectangle({nextLeft - ButtonGap - width, inner.height - BarHeight, width, BarHeight});
    const auto band = form_->control<Label>(u"lab_Band");
    band->BackColor(coreTheme().Colour(ThemeSlot::Frame));
    band->frame().pixelRectangle({0, inner.height - BarHeight, inner.width, BarHeight});
    form_->control<ctl_Title>(u"bar_Header")->frame().pixelRectangle({0, 0, inner.width, HeaderHeight});
    form_->control<PictureBox>(u"pic_ViewHolder")
        ->frame()
        .pixelRectangle({0, HeaderHeight, inner.width, std::max(1.0, stripTop - HeaderHeight - StripGap)});
    if (isLoaded_) {
        finishSlide();
        makeStrip();
        showPage();
    }
}

void frm_DialogHelpImages::showBook()
{
    delete_->Visible(more_.Get(u"DELETE") == Variant(true));
    pages_.forget();
    pages_.expect(fileInView());
    makeStrip();
    showPage();
}

void frm_DialogHelpImages::makeStrip()
{
    using namespace help_design;
    const double width = form_->innerSize().width - 2 * Margin;
    strip_ = PageStrip(book_.Files().Count(), width);
    for (auto last = static_cast<std::int32_t>(segments_.Count()) - 1; last > strip_.segments(); --last) {
        segments_.unload(last);
    }
    for (auto next = static_cast<std::int32_t>(segments_.Count()); next <= strip_.segments(); ++next) {
        segments_.load(next);
    }
    const double top = form_->innerSize().height - BarHeight - StripHeight - StripGap - StripEdge;
    stripView_->frame().pixelRectangle({0, top, form_->innerSize().width, StripHeight + 2 * StripEdge});
    const auto edge = form_->control<Label>(u"lab_Strip");
    edge->Visible(strip_.segments() > 0);
    edge->frame().pixelRectangle({Margin - StripEdge, 0,
                                  strip_.left(strip_.segments()) + strip_.segmentWidth() + 2 * StripEdge,
                                  StripHeight + 2 * StripEdge});
    for (std::int32_t segment = 1; segment <= strip_.segments(); ++segment) {
        Label& label = *segments_(segment);
        label.frame().pixelRectangle(
            {Margin + strip_.left(segment), StripEdge, strip_.segmentWidth(), StripHeight});
        label.BackColor(strip_.colourOf(segment, book_.Page()));
        label.Visible(true);
    }
}

/// A menu without pages is its map.
String frm_DialogHelpImages::fileInView() const
{
    const bool isMapAlone = book_.HasMenu() && book_.Files().Count() == 0;
    return isMapAlone ? book_.mapFile() : book_.fileOf(book_.Page());
}

void frm_DialogHelpImages::showPage()
{
    book_.Page(book_.Page());
    for (std::int32_t segment = 1; segment <= strip_.segments(); ++segment) {
        segments_(segment)->BackColor(strip_.colourOf(segment, book_.Page()));
    }
    stripView_->refresh();
    const std::int32_t page = book_.Page();
    pages_.showMap(book_.mapFile());
    pages_.show(book_.fileOf(page - 1), fileInView(), book_.fileOf(page + 1));
    showPlace();
    speakPage();
}

/// What can no longer have the keyboard hands it on.
void frm_DialogHelpImages::showPlace()
{
    const HelpPlace place = book_.place();
    back_->Enabled(place.mayGoBack());
    next_->Enabled(place.mayGoNext());
    menu_->Enabled(place.hasMenuToGoTo());
    delete_->Enabled(place.pages > 0);
    const auto bar = form_->control<ctl_CmdBar>(u"ctl_CmdBar1");
    bar->BUTTONS()->Item(1)->Enabled(pages_.hasPicture());
    bar->REFRESH();
    form_->control<ctl_Title>(u"bar_Header")
        ->TextRight(place.pages <= 1 ? String()
                                     : Variant(place.page).toText() + u" / " + Variant(place.pages).toText());
    const auto page = form_->control<PictureBox>(u"pic_Viewer", 1);
    page->frame().canFocus(place.isMenuInView() || !(next_->Enabled() || back_->Enabled()));
    if (!page->frame().canFocus() && form_->ActiveControl() == page) {
        form_->focus(nullptr);
    }
    if (form_->Visible() && !form_->ActiveControl()) {
        handOnKeyboard();
    }
}

/// To what goes on with reading: the page where that is a menu or the only one, else the way to the next one,
/// or back. Never to "Print", which Return would press.
void frm_DialogHelpImages::handOnKeyboard()
{
    const ControlPtr page = form_->control<PictureBox>(u"pic_Viewer", 1);
    for (const ControlPtr& control : {page, ControlPtr(next_), ControlPtr(back_)}) {
        const ControlFrame& frame = control->frame();
        if (frame.canFocus() && frame.Visible() && frame.Enabled()) {
            control->SetFocus();
            return;
        }
    }
}

void frm_DialogHelpImages::speakPage()
{
    const HelpPlace place = book_.place();
    String name = place.pages == 0
                      ? String()
                      : LNG()->TRANSLATE(u"Seite {1} von {2}", u"Page {1} of {2}", {place.page, place.pages});
    if (const String text = book_.textOf(place.page); !text.empty()) {
        name += u": " + text;
    }
    const auto page = form_->control<PictureBox>(u"pic_Viewer", 1);
    if (page->frame().AccessibleName() != name) {
        page->frame().AccessibleName(name);
        if (form_->Visible()) {
            page->frame().announce(name);
        }
    }
}

void frm_DialogHelpImages::turn(PageTurn turn)
{
    finishSlide();
    const HelpPlace place = book_.place();
    const bool hasPage = turn == PageTurn::Next ? place.page < place.pages : place.page >= 2;
    const bool mayGo = turn == PageTurn::Next ? place.mayGoNext() : place.mayGoBack();
    if (hasPage) {
        slide(turn);
    } else if (mayGo) {
        goToMenu();
    }
}

void frm_DialogHelpImages::goToPage(std::int32_t page)
{
    animation_->Enabled(false);
    slide_.stop();
    book_.Page(page);
    showPage();
}

void frm_DialogHelpImages::goToMenu()
{
    finishSlide();
    if (book_.place().hasMenuToGoTo()) {
        book_.goToMenu();
        showBook();
    }
}

void frm_DialogHelpImages::slide(PageTurn turn)
{
    pages_.showWhole();
    pages_.lay(slide_.offset());
    slide_.slide(turn, pages_.viewSize().width, now());
    if (coreRoot().CoreDisplay().ReducesMotion()) {
        finishSlide();
    } else {
        animation_->Enabled(true);
    }
}

void frm_DialogHelpImages::tick()
{
    if (!slide_.isRunning()) {
        animation_->Enabled(false);
        pages_.layZoom();
    } else if (slide_.isOverAt(now())) {
        finishSlide();
    } else {
        pages_.lay(slide_.offset());
    }
}

/// A slide under way ends at once, with its page turned.
void frm_DialogHelpImages::finishSlide()
{
    animation_->Enabled(false);
    if (slide_.isRunning()) {
        take(slide_.finish());
    } else {
        slide_.stop();
    }
}

/// Behind the last page comes the menu.
void frm_DialogHelpImages::take(PageTurn turn)
{
    const HelpPlace place = book_.place();
    switch (turn) {
    case PageTurn::Stay:
        pages_.lay(0);
        return;
    case PageTurn::Next:
        if (place.page >= place.pages) {
            book_.goToMenu();
            showBook();
            return;
        }
        break;
    case PageTurn::Back:
        break;
    }
    book_.Page(place.page + static_cast<std::int32_t>(turn));
    showPage();
}

void frm_DialogHelpImages::press(std::int32_t touch, PixelPoint at)
{
    animation_->Enabled(false);
    touches_.insert_or_assign(touch, at);
    isStill_ = touches_.size() == 1 && slide_.offset() == 0;
    pressedAt_ = at;
    if (touches_.size() == 1) {
        slide_.grab(at.x);
    } else {
        slide_.stop();
        pages_.lay(0);
    }
}

void frm_DialogHelpImages::move(std::int32_t touch, PixelPoint at)
{
    const auto held = touches_.find(touch);
    if (held == touches_.end()) {
        return;
    }
    if (distance(at, pressedAt_) > TapReach) {
        isStill_ = false;
    }
    if (touches_.size() > 1) {
        pinch(touch, at);
    } else if (pages_.zoom().isEnlarged()) {
        pages_.move(at.x - held->second.x, at.y - held->second.y);
        pages_.layZoom();
    } else if (slide_.isGrabbed()) {
        const HelpPlace place = book_.place();
        slide_.drag(at.x, pages_.viewSize().width, place.page >= 2, place.mayGoNext());
        pages_.lay(slide_.offset());
    }
    held->second = at;
}

/// Two fingers enlarge the page by what their distance grows, and carry it along.
void frm_DialogHelpImages::pinch(std::int32_t touch, PixelPoint at)
{
    const auto moved = touches_.find(touch);
    const auto other = moved == touches_.begin() ? std::next(touches_.begin()) : touches_.begin();
    const double before = distance(moved->second, other->second);
    const PixelPoint from = middle(moved->second, other->second);
    const PixelPoint to = middle(at, other->second);
    if (before > 0) {
        pages_.enlarge(distance(at, other->second) / before, from);
    }
    pages_.move(to.x - from.x, to.y - from.y);
    animation_->Enabled(true);
}

void frm_DialogHelpImages::letGo(std::int32_t touch, PixelPoint at, bool isCancelled)
{
    if (touches_.erase(touch) == 0 || !slide_.isGrabbed()) {
        return;
    }
    const PageTurn turn = slide_.release(pages_.viewSize().width);
    if (isStill_ && !isCancelled && book_.place().isMenuInView()) {
        slide_.stop();
        tap(at);
    } else if (slide_.offset() != 0) {
        slide(isCancelled ? PageTurn::Stay : turn);
    }
}

void frm_DialogHelpImages::tap(PixelPoint at)
{
    if (book_.follow(pages_.mapColourAt(at))) {
        enterFolder();
    }
}

/// Whoever has opened a chapter reads on.
void frm_DialogHelpImages::enterFolder()
{
    showBook();
    if (next_->Enabled()) {
        next_->SetFocus();
    }
}

void frm_DialogHelpImages::wheel(WheelEvent& event)
{
    event.used = true;
    finishSlide();
    const PixelSize view = pages_.viewSize();
    pages_.enlarge(std::pow(WheelStep, event.Notches), {view.width / 2, view.height / 2});
    pages_.layZoom();
}

void frm_DialogHelpImages::keyDown(KeyEvent& event)
{
    if (event.Shift == 0 && (turnsPage(event) || opensChapter(event))) {
        event.KeyCode = 0;
    }
}

/// The chapters of a menu have numbers.
bool frm_DialogHelpImages::opensChapter(const KeyEvent& event)
{
    constexpr std::int32_t Chapters = 6;
    const std::int32_t number = event.KeyCode - u'0';
    if (number < 1 || number > Chapters || !book_.place().isMenuInView()) {
        return false;
    }
    finishSlide();
    book_.openChapter(u"K" + Variant(number).toText());
    enterFolder();
    return true;
}

bool frm_DialogHelpImages::turnsPage(const KeyEvent& event)
{
    if (event.is(Key::Right) || event.is(Key::PageDown)) {
        turn(PageTurn::Next);
    } else if (event.is(Key::Left) || event.is(Key::PageUp)) {
        turn(PageTurn::Back);
    } else if (event.is(Key::Home)) {
        goToPage(1);
    } else if (event.is(Key::End)) {
        goToPage(book_.Files().Count());
    } else {
        return false;
    }
    return true;
}

void frm_DialogHelpImages::deletePage()
{
    finishSlide();
    const String file = book_.fileOf(book_.Page());
    phial::CoreDialogs& dialogs = coreRoot().CoreDialogs();
    if (file.empty() || dialogs.YesNo(LNG()->TRANSLATE(u"Wollen Sie die Lösung wirklich löschen?",
                                                       u"Do you really want to delete this solution?")) !=
                            DialogAnswer::Yes) {
        return;
    }
    if (!coreRoot().CoreFiles().Delete(file)) {
        dialogs.Error(LNG()->TRANSLATE(u"Die Lösung lässt sich nicht löschen. Die Datei ist geschützt.",
                                       u"The solution cannot be deleted. Its file is protected."));
        return;
    }
    book_.drop(file);
    if (book_.Files().Count() == 0) {
        form_->Unload();
        return;
    }
    book_.reload();
    showBook();
}

void frm_DialogHelpImages::printPage()
{
    finishSlide();
    const std::int32_t page = book_.Page();
    printHelpPage(book_.Files().Count() == 0 ? book_.mapFile() : book_.fileOf(page),
                  form_->control<ctl_Title>(u"bar_Header")->Title());
}

} // namespace phial
