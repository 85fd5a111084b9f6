#include "DesktopRun.h"
#include "mascot/ctl_DrAtom.h"

#include <QTimer>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <vector>

namespace phial::qt
{

namespace
{

constexpr qint64 Millisecond = 1'000'000; // nanoseconds

/// When something has happened again and again.
class Beat
{
public:
    Beat() { clock_.start(); }

    void note() { times_.push_back(elapsed()); }
    void forget() { times_.clear(); }
    std::size_t count() const { return times_.size(); }
    qint64 elapsed() const { return clock_.nsecsElapsed(); }
    /// The time of one as many before the last.
    qint64 before(std::size_t count) const { return times_[times_.size() - 1 - count]; }
    /// How many gaps that began then or later are not of 45 to 55 milliseconds.
    std::ptrdiff_t unsteadySince(qint64 time) const
    {
        const auto first = std::ranges::lower_bound(times_, time);
        std::vector<qint64> gaps;
        std::adjacent_difference(first, times_.end(), std::back_inserter(gaps));
        return std::count_if(gaps.begin() + (gaps.empty() ? 0 : 1), gaps.end(),
                             [](qint64 gap) { return gap < 45 * Millisecond || gap > 55 * Millisecond; });
    }

private:
    QElapsedTimer clock_;
    std::vector<qint64> times_;
};

/// Notes when a widget is painted.
class PaintTimes final : public QObject, public Beat
{
public:
    explicit PaintTimes(QWidget& widget) { widget.installEventFilter(this); }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            note();
        }
        return QObject::eventFilter(watched, event);
    }
};

class MascotFrames : public DesktopRun
{
protected:
    MascotFrames()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        form->innerSize({300, 200});
        atom->MOOD(enm_DrAtomMood::ID_DrAtomMood_Neutral);
        form->Show();
    }
    ~MascotFrames() override { form->discard(); }

    /// Lets half a second pass with its events.
    static void pass()
    {
        QElapsedTimer clock;
        clock.start();
        eventually([&] { return clock.elapsed() >= 500; });
    }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Shown");
    std::shared_ptr<ctl_DrAtom> atom = form->add<ctl_DrAtom>(u"dra_Shown");
};

/// Of two seconds 95 % of the frames are in time, any two of ten. Where the machine has so much other work
/// that a bare timer is late too, its late ticks are allowed on top.
TEST_F(MascotFrames, ComeInTimeAndNotTooOften)
{
    constexpr std::size_t Spell = 40; // frames
    constexpr std::ptrdiff_t Late = Spell * 5 / 100;
    ASSERT_TRUE(eventually([&] { return widgetOf(*form).isActiveWindow(); }));
    pass();
    PaintTimes frames(widgetOf(*atom));
    Beat ticks;
    QTimer bare;
    bare.setTimerType(Qt::PreciseTimer);
    QObject::connect(&bare, &QTimer::timeout, &bare, [&] { ticks.note(); });
    bare.start(50);
    const auto areSteady = [&] {
        if (frames.count() <= Spell) {
            return false;
        }
        const qint64 start = frames.before(Spell);
        return frames.unsteadySince(start) <= Late + ticks.unsteadySince(start);
    };
    EXPECT_TRUE(eventually(areSteady) || eventually(areSteady)) << frames.count();
    EXPECT_LE(frames.count(), static_cast<std::size_t>(frames.elapsed() / (50 * Millisecond)) + 2);
}

TEST_F(MascotFrames, AreNotPaintedWhileHiddenOrAtRest)
{
    ASSERT_TRUE(eventually([&] { return widgetOf(*form).isActiveWindow(); }));
    PaintTimes times(widgetOf(*atom));
    ASSERT_TRUE(eventually([&] { return times.count() >= 3; }));
    atom->Visible(false);
    QApplication::processEvents();
    times.forget();
    pass();
    EXPECT_EQ(times.count(), 0U);
    atom->Visible(true);
    EXPECT_TRUE(eventually([&] { return times.count() >= 3; })) << "and goes on";
    atom->moves(false);
    pass(); // it comes to rest
    times.forget();
    pass();
    EXPECT_EQ(times.count(), 0U);
}

} // namespace

} // namespace phial::qt
