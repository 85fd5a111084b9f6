#include "app/screen/Siblings.h"

#include "core/Members.h"
#include "core/RuntimeError.h"
#include "visual/Control.h"

#include <gtest/gtest.h>

namespace phial
{

namespace
{

/// A control with the members that the look-up reads.
class Named : public Object
{
public:
    explicit Named(String name, String id = {}) : name_(std::move(name)), id_(std::move(id)) {}

    String NAME() const { return name_; }
    String CTRLID() const
    {
        if (id_ == u"broken") {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        return id_;
    }
    ObjectPtr Parent() const { return parent.lock(); }

    StringView typeName() const override { return u"ctl_Named"; }
    MemberTable members() const override;

    std::weak_ptr<Object> parent;

private:
    String name_;
    String id_;
};

constexpr Member NamedTable[] = {
    members::readOnly<Named, String, &Named::NAME>(u"Name"),
    members::readOnly<Named, String, &Named::CTRLID>(u"CtrlId"),
    members::readOnly<Named, ObjectPtr, &Named::Parent>(u"Parent"),
};

MemberTable Named::members() const
{
    return NamedTable;
}

/// A thing on a form that has neither name nor id, such as a timer.
class Nameless : public Object
{
public:
    StringView typeName() const override { return u"Timer"; }
    MemberTable members() const override { return {}; }
};

/// A form.
class Parent : public ControlParent
{
public:
    ScaleUnit ScaleMode() const override { return ScaleUnit::Pixels; }
    std::size_t controlCount() const override { return controls.size(); }
    ObjectPtr controlAt(std::size_t index) const override { return controls.at(index); }
    StringView typeName() const override { return u"Form"; }
    MemberTable members() const override { return {}; }

    std::vector<ObjectPtr> controls;
};

/// A parent that is no form but counts its controls itself.
class CountingParent : public Object
{
public:
    std::int32_t COUNT() const { return static_cast<std::int32_t>(controls.size()); }
    StringView typeName() const override { return u"Collection"; }
    MemberTable members() const override;

    std::vector<ObjectPtr> controls;
};

constexpr Member CountingTable[] = {
    members::readOnly<CountingParent, std::int32_t, &CountingParent::COUNT>(u"Count"),
    {u"Item", nullptr, nullptr,
     [](Object& object, std::span<const Variant> arguments) {
         const auto index = static_cast<std::size_t>(arguments.front().toWhole());
         return Variant(static_cast<CountingParent&>(object).controls.at(index));
     }},
};

MemberTable CountingParent::members() const
{
    return CountingTable;
}

class Siblings : public ::testing::Test
{
protected:
    std::shared_ptr<Named> add(String name, String id = {})
    {
        auto control = std::make_shared<Named>(std::move(name), std::move(id));
        control->parent = form;
        form->controls.push_back(control);
        return control;
    }

    std::shared_ptr<Parent> form = std::make_shared<Parent>();
};

TEST_F(Siblings, AreFoundByTheirId)
{
    const auto asker = add(u"lab_Input", u"in");
    form->controls.push_back(std::make_shared<Nameless>());
    add(u"lab_Broken", u"broken");
    const auto wanted = add(u"lab_Output", u"out");
    EXPECT_EQ(FindControlById(*asker, u"out"), wanted);
    EXPECT_EQ(FindControlById(*asker, u"in"), asker);
}

TEST_F(Siblings, AreTakenInTheOrderOfTheForm)
{
    const auto first = add(u"one", u"same");
    const auto second = add(u"two", u"same");
    EXPECT_EQ(FindControlById(*second, u"same"), first);
}

TEST_F(Siblings, DistinguishCaseInIds)
{
    const auto asker = add(u"lab_Input", u"in");
    EXPECT_EQ(FindControlById(*asker, u"IN"), nullptr);
}

TEST_F(Siblings, AreNotFoundByAnEmptyId)
{
    const auto asker = add(u"lab_Input", u"");
    EXPECT_EQ(FindControlById(*asker, u""), nullptr);
}

TEST_F(Siblings, AreFoundByTypeAndTrimmedNameWithoutCase)
{
    const auto asker = add(u"lab_Input");
    const auto wanted = add(u" Bubble ");
    EXPECT_EQ(FindControlByType(*asker, u"CTL_NAMED", u"bubble  "), wanted);
    EXPECT_EQ(FindControlByType(*asker, u"ctl_other", u"bubble"), nullptr);
    EXPECT_EQ(FindControlByType(*asker, u"ctl_named", u"other"), nullptr);
}

TEST_F(Siblings, AreFoundByAnEmptyName)
{
    const auto asker = add(u"");
    EXPECT_EQ(FindControlByType(*asker, u"ctl_named", u" "), asker);
}

TEST_F(Siblings, AreNotFoundWithoutAParent)
{
    Named alone(u"alone", u"in");
    EXPECT_EQ(FindControlById(alone, u"in"), nullptr);
    EXPECT_EQ(FindControlByType(alone, u"ctl_named", u"alone"), nullptr);
    Nameless parentless;
    EXPECT_EQ(FindControlById(parentless, u"in"), nullptr);
}

TEST_F(Siblings, AreFoundOnAParentThatCountsItself)
{
    const auto parent = std::make_shared<CountingParent>();
    const auto asker = std::make_shared<Named>(u"a", u"a");
    const auto wanted = std::make_shared<Named>(u"b", u"b");
    parent->controls = {asker, std::make_shared<Nameless>(), wanted};
    asker->parent = parent;
    EXPECT_EQ(FindControlById(*asker, u"b"), wanted);
    EXPECT_EQ(FindControlByType(*asker, u"CTL_NAMED", u"B"), wanted);
}

TEST_F(Siblings, AreNotFoundOnAParentThatHoldsNothing)
{
    const auto parent = std::make_shared<Nameless>();
    Named asker(u"a", u"a");
    asker.parent = parent;
    EXPECT_EQ(FindControlById(asker, u"a"), nullptr);
}

} // namespace

} // namespace phial
