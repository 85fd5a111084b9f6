#pragma once

#include "dialogs/PageSlide.h"
#include "dialogs/PageZoom.h"
#include "visual/ControlArray.h"
#include "visual/PictureBox.h"
#include "visual/ScaledPicture.h"
#include "visual/Timer.h"

#include <array>
#include <memory>
#include <optional>

namespace phial
{

/// The pictures of a help book in their view: the page before (0), the one in view (1), the next (2), and a
/// menu's map, which stays hidden (3). A page takes the whole view, its picture in the middle as large as the
/// bitmap, or smaller where the view is. No more than these pictures are held; what fails to load leaves its
/// place empty. The page in view is read at once, its neighbours when it has been seen, or is moved. While
/// the window is being made the page is read in the background, as far as the outside can do that, and waited
/// for when it is painted.
class HelpPages
{
public:
    /// Takes up the picture boxes and what holds them.
    HelpPages(Form& form, StringView boxes, StringView view);

    static constexpr std::int32_t ReadInterval = 30; ///< milliseconds until the neighbours are read

    /// For who has more to do before it shows the pages: the file of the one in view. Reading it begins in
    /// the background where that can be.
    void expect(const String& current);
    /// The files of the three pages, empty for none. Pictures that are held already are not read again,
    /// unless the view has another size now or is shown finer.
    void show(const String& before, const String& current, const String& next);
    /// The file of the map; empty for none.
    void showMap(const String& file);
    /// Drops all pictures, so that they are read again.
    void forget();

    /// The view's size in pixels.
    PixelSize viewSize() const;
    /// Whether there is a picture in view. One on its way counts, as long as it has not failed.
    bool hasPicture() const { return coming_ || held_[Current].picture; }
    /// The picture on its way has failed.
    Event<> FAILED;
    /// Puts the pages side by side, the one in view at that distance from its rest, unless it is enlarged.
    void lay(double offset);
    const PageZoom& zoom() const { return zoom_; }
    /// See PageZoom; the page has to be at rest. It is seen so once `layZoom` has been called: events of
    /// several fingers come together, all at places of the page as it was.
    void enlarge(double by, PixelPoint at);
    void move(double x, double y);
    void layZoom();
    void showWhole();

    /// The map's colour that lies at a point of the view, "#RRGGBB"; empty beside the page, at a hole of the
    /// map and without a map.
    String mapColourAt(PixelPoint point) const;

    /// A pointer's event on one of the pages as one of the view.
    static PixelPoint inView(PictureBox& page, const PointerEvent& event);

private:
    static constexpr std::int32_t Before = 0;
    static constexpr std::int32_t Current = 1;
    static constexpr std::int32_t Next = 2;
    static constexpr std::int32_t Map = 3;
    static constexpr std::size_t Pages = 3;

    struct Held {
        String file;
        PicturePtr picture;
    };

    Held known(const String& file) const;
    void read(Held& page) const;
    void beginCurrent();
    void takeCurrent();
    void awaitCurrent();
    bool isComing(const String& file) const { return coming_ && held_[Current].file == file; }
    PixelSize sizeOf(std::int32_t index) const;
    void paintCurrent();
    void readNeighbours();
    void showBox(std::int32_t index);
    void dropUnfitting();
    double density() const;
    void place(std::int32_t index, double offset);

    Form& form_;
    std::shared_ptr<PictureBox> view_;
    ControlArray<PictureBox> boxes_;
    std::array<Held, Pages> held_;
    std::optional<ComingPicture> coming_; ///< of the page in view, until it is needed
    Timer reading_;                       ///< runs while neighbours are not read yet
    Held map_;
    PixelSize heldFor_; ///< the view for which the pictures were read, and how fine
    double heldDensity_ = 0;
    PicturePtr fine_; ///< the picture in view with all the pixels that an enlarged one can show
    PageZoom zoom_;
    Connections connections_;
};

} // namespace phial
