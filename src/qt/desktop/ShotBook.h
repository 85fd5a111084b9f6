#pragma once

#include "core/String.h"
#include "visual/Picture.h"

#include <filesystem>
#include <functional>

namespace phial
{
class Form;
}

namespace phial::qt
{

class FixedPixelRatio;

/// The inside of a form's open window as a picture with that many pixels for a logical one.
PicturePtr grabForm(const Form& form, double scale);

/// Takes pictures of a program's windows into a folder, for documents and reviews, each as `name@1x.png` or
/// whatever the scale is. While a book is open everything is painted for its scale, so it has to be opened
/// before the forms that it is to show.
class ShotBook
{
public:
    /// The folder is made if it is missing. Raises 5 for a scale that is not above 0.
    ShotBook(std::filesystem::path folder, double scale);
    ~ShotBook();
    ShotBook(const ShotBook&) = delete;
    ShotBook& operator=(const ShotBook&) = delete;

    /// Runs what is pending, takes the form's window and writes it; raises 53 when the file cannot be written
    /// and 5 for a form without a window.
    void take(StringView name, const Form& form);

    /// Runs `open`, which shows a box or a modal form, takes that window in place of the user and closes it.
    void takeModal(StringView name, const std::function<void()>& open);
    /// Whether a book is about to take and close whatever modal window comes.
    static bool isTakingModal();

private:
    void write(StringView name, const Picture& picture) const;

    std::filesystem::path folder_;
    double scale_;
    std::unique_ptr<FixedPixelRatio> ratio_;
};

/// Takes a program's pictures at 1x and 2x. `tour` runs once a scale; it shows the program's states one after
/// the other and has each taken by the book.
void takeShots(const std::filesystem::path& folder, const std::function<void(ShotBook& book)>& tour);

} // namespace phial::qt
