#pragma once

#include "visual/FrameMembers.h"
#include "visual/PaintSurface.h"
#include "visual/PropertyRow.h"
#include "visual/UserControl.h"

/// The properties of a control, one row each. A class names `struct Properties;` among its private members
/// and writes the table in its .cpp; from a row follow the member of that name, the default, what goes into
/// and comes out of a bag, and the body of the setter:
///
///     struct ctl_Balloon::Properties {
///         static constexpr rows::Table Table{
///             rows::property<u"ZIP">(&ctl_Balloon::zip_, true).kept(),
///             rows::property<u"SHADOW">(&ctl_Balloon::shadow_, true).kept().fresh(false),
///             rows::property<u"SPEED">(&ctl_Balloon::speed_, 10.0).kept(u"SPPED"),
///             rows::property<u"SIZE">(&ctl_Balloon::size_, 30).kept().ignoringUnless(rows::isPositive),
///             rows::font<u"TEXTFONT">(&ctl_Balloon::font_).kept(),
///             rows::operation<u"REDRAW">(&ctl_Balloon::REDRAW),
///         };
///         static constexpr bool Always = true;                   // where a row does not say otherwise
///         static constexpr auto Effect = &ctl_Balloon::REDRAW;
///     };
///
///     ctl_Balloon::ctl_Balloon() : frame_(*this), surface_(*this) { rows::start<Properties>(*this); }
///     MemberTable ctl_Balloon::members() const { return rows::membersOf<Properties>(); }
///     void ctl_Balloon::ZIP(bool value) { rows::set<Properties, u"ZIP">(*this, value); }
///     void ctl_Balloon::readProperties(const PropertyBag& bag) { rows::read<Properties>(*this, bag); }
///
/// **A write** checks the value, returns when it is the present one (unless `always` is said), stores it,
/// tells PropertyChanged the row's name, and then has its effect: what the row says, else what the class
/// says, else a painted control is painted anew and a widget of the toolkit hears that its style has changed.
/// The setter and the member of that name do the same. `read` and `start` only store; what they make
/// necessary the control does once behind them.
///
/// **A bag** gets each kept property under its key, which is the row's name unless another is told. There is
/// one default for reading and writing, since a bag leaves out what equals it; a freshly placed control can
/// differ from it (`fresh`). A number outside an enumeration's names is kept as it is. A font goes in as a
/// copy and comes back as a font of the control's own; without one in the bag it is the row's.
namespace phial::rows
{

namespace detail
{

template <typename Properties>
using OwnerOf = typename std::remove_cvref_t<decltype(Properties::Table)>::Owner;

template <typename Properties>
constexpr std::size_t sizeOf = std::remove_cvref_t<decltype(Properties::Table)>::size;

template <typename Properties, std::size_t At>
constexpr const auto& rowAt()
{
    return std::get<At>(Properties::Table.rows);
}

template <typename Properties, std::size_t At>
using RowAt = std::remove_cvref_t<decltype(rowAt<Properties, At>())>;

template <typename Row>
concept IsProperty = requires(const Row& row)
{
    row.place;
};
template <typename Row>
concept IsFont = IsProperty<Row> && std::same_as<typename Row::Value, FontPtr>;

/// The position of the row of that name.
template <typename Properties, Name RowName>
consteval std::size_t indexOf()
{
    std::size_t found = sizeOf<Properties>;
    [&]<std::size_t... At>(std::index_sequence<At...>)
    {
        ((RowAt<Properties, At>::name == RowName.view() ? found = At : found), ...);
    }
    (std::make_index_sequence<sizeOf<Properties>>());
    return found < sizeOf<Properties> ? found : throw "the table has no row of that name";
}

template <typename Properties, Name RowName>
using RowNamed = RowAt<Properties, indexOf<Properties, RowName>()>;

/// Calls `action` with the position of each property, as a constant.
template <typename Properties, typename Action>
void eachProperty(const Action& action)
{
    [&]<std::size_t... At>(std::index_sequence<At...>)
    {
        const auto visit = [&]<std::size_t Here>(std::integral_constant<std::size_t, Here> here) {
            if constexpr (IsProperty<RowAt<Properties, Here>>) {
                action(here);
            }
        };
        (visit(std::integral_constant<std::size_t, At>()), ...);
    }
    (std::make_index_sequence<sizeOf<Properties>>());
}

template <typename Properties, std::size_t At>
void takeEffect(OwnerOf<Properties>& object)
{
    using Owner = OwnerOf<Properties>;
    constexpr const auto& row = rowAt<Properties, At>();
    if constexpr (row.isStill) {
        return;
    } else if constexpr (row.effect != nullptr) {
        (object.*row.effect)();
    } else if constexpr (row.aspect.has_value()) {
        object.frame().report(*row.aspect);
    } else if constexpr (requires { Properties::Effect; }) {
        (object.*Properties::Effect)();
    } else if constexpr (std::derived_from<Owner, UserControl>) {
        object.surface().invalidate();
    } else if constexpr (std::derived_from<Owner, Control>) {
        object.frame().report(ControlAspect::Style);
    }
}

/// Tells a change and lets it take effect. The object lives until its end, whatever a handler does.
template <typename Properties, std::size_t At>
void changed(OwnerOf<Properties>& object)
{
    using Owner = OwnerOf<Properties>;
    constexpr const auto& row = rowAt<Properties, At>();
    [[maybe_unused]] std::shared_ptr<const void> self;
    if constexpr (std::derived_from<Owner, Control>) {
        self = object.weak_from_this().lock();
    }
    if constexpr (row.isTold && std::derived_from<Owner, UserControl>) {
        object.PropertyChanged.raise(String(row.name));
    }
    takeEffect<Properties, At>(object);
    if constexpr (row.isSpoken) {
        object.frame().report(ControlAspect::Accessibility);
    }
}

template <typename Properties, std::size_t At>
void share(OwnerOf<Properties>& object, FontPtr font)
{
    (object.*rowAt<Properties, At>().place.field).share(std::move(font), [&object] {
        changed<Properties, At>(object);
    });
}

inline FontPtr fontOf(const FontDesign& design)
{
    return std::make_shared<Font>(design.traits());
}

/// Stores a value without telling.
template <typename Properties, std::size_t At, typename Value>
void store(OwnerOf<Properties>& object, Value value)
{
    if constexpr (IsFont<RowAt<Properties, At>>) {
        share<Properties, At>(object, std::move(value));
    } else {
        rowAt<Properties, At>().place.put(object, std::move(value));
    }
}

/// What a row holds as default, as a value.
template <typename Row>
typename Row::Value valueOf(const typename Row::Default& standard)
{
    if constexpr (IsFont<Row>) {
        return fontOf(standard);
    } else {
        return typename Row::Value(standard);
    }
}

/// Gives whether the value may be stored.
template <typename Properties, std::size_t At, typename Value>
bool admits(const OwnerOf<Properties>& object, const Value& value)
{
    constexpr const auto& row = rowAt<Properties, At>();
    if constexpr (row.check != nullptr) {
        if (!row.check(value)) {
            return row.raises ? throw RuntimeError(ErrorNumber::InvalidArgument) : false;
        }
    }
    constexpr bool isAlways = row.isAlways.value_or(requires { requires Properties::Always; });
    return isAlways || !(row.place.get(object) == value);
}

template <typename Properties, std::size_t At, typename Value>
void write(OwnerOf<Properties>& object, Value value)
{
    using Row = RowAt<Properties, At>;
    constexpr const auto& row = rowAt<Properties, At>();
    if constexpr (IsFont<Row>) {
        if (!value && row.nullIsDefault) {
            value = fontOf(row.standard);
        }
        share<Properties, At>(object, std::move(value));
        changed<Properties, At>(object);
    } else if (admits<Properties, At>(object, value)) {
        row.place.put(object, std::move(value));
        changed<Properties, At>(object);
    }
}

template <typename Properties, std::size_t At>
Variant readByName(Object& object)
{
    using Row = RowAt<Properties, At>;
    auto& owner = static_cast<OwnerOf<Properties>&>(object);
    if constexpr (IsProperty<Row>) {
        return members::toVariant<typename decltype(Row::access)::Value>(
            rowAt<Properties, At>().access.get(owner));
    } else {
        return members::toVariant((owner.*rowAt<Properties, At>().reader)());
    }
}

template <typename Properties, std::size_t At>
void writeByName(Object& object, const Variant& value)
{
    using Row = RowAt<Properties, At>;
    auto& owner = static_cast<OwnerOf<Properties>&>(object);
    auto converted = members::fromVariant<typename decltype(Row::access)::Value>(value);
    if constexpr (decltype(Row::access)::actsItself) {
        rowAt<Properties, At>().access.put(owner, std::move(converted));
    } else {
        write<Properties, At>(owner, std::move(converted));
    }
}

template <typename Properties, std::size_t At>
Variant callByName(Object& object, [[maybe_unused]] std::span<const Variant> arguments)
{
    auto& owner = static_cast<OwnerOf<Properties>&>(object);
    constexpr auto call = rowAt<Properties, At>().call;
    if constexpr (std::is_member_function_pointer_v<decltype(call)>) {
        (owner.*call)();
        return {};
    } else {
        return call(owner, arguments);
    }
}

template <typename Properties, std::size_t At>
constexpr Member memberAt()
{
    using Row = RowAt<Properties, At>;
    if constexpr (IsProperty<Row>) {
        return {Row::name, readByName<Properties, At>, writeByName<Properties, At>};
    } else if constexpr (requires(const Row& row) { row.reader; }) {
        return {Row::name, readByName<Properties, At>};
    } else {
        return {Row::name, nullptr, nullptr, callByName<Properties, At>};
    }
}

template <typename Properties>
constexpr auto memberArray()
{
    return []<std::size_t... At>(std::index_sequence<At...>)
    {
        const auto own = std::to_array<Member>({memberAt<Properties, At>()...});
        if constexpr (std::derived_from<OwnerOf<Properties>, Control>) {
            return joinMembers(FrameMembers, own);
        } else {
            return own;
        }
    }
    (std::make_index_sequence<sizeOf<Properties>>());
}

template <typename Properties, std::size_t At>
void readOne(OwnerOf<Properties>& object, const PropertyBag& bag)
{
    using Row = RowAt<Properties, At>;
    constexpr const auto& row = rowAt<Properties, At>();
    if constexpr (row.key.empty()) {
        return;
    } else if constexpr (IsFont<Row>) {
        const Variant kept = bag.ReadProperty(row.key);
        const auto stored = kept.isEmpty() ? nullptr : members::fromVariant<FontPtr>(kept);
        share<Properties, At>(object, stored ? stored : fontOf(row.standard));
    } else {
        const Variant standard = members::toVariant(row.standard);
        store<Properties, At>(object,
                              members::fromVariant<typename Row::Value>(bag.ReadProperty(row.key, standard)));
    }
}

template <typename Properties, std::size_t At>
void writeOne(const OwnerOf<Properties>& object, PropertyBag& bag)
{
    using Row = RowAt<Properties, At>;
    constexpr const auto& row = rowAt<Properties, At>();
    if constexpr (row.key.empty()) {
        return;
    } else if constexpr (IsFont<Row>) {
        bag.WriteProperty(row.key, ObjectPtr(row.place.get(object)));
    } else if constexpr (row.keptValue != nullptr) {
        bag.WriteProperty(row.key, members::toVariant<typename Row::Value>((object.*row.keptValue)()),
                          members::toVariant(row.standard));
    } else {
        bag.WriteProperty(row.key, members::toVariant<typename Row::Value>(row.place.get(object)),
                          members::toVariant(row.standard));
    }
}

template <typename Properties>
consteval std::size_t keptCount()
{
    return []<std::size_t... At>(std::index_sequence<At...>)
    {
        const auto isKept = []<typename Row>(const Row& row) {
            if constexpr (IsProperty<Row>) {
                return !row.key.empty();
            }
            return false;
        };
        return (std::size_t{0} + ... + (isKept(rowAt<Properties, At>()) ? 1 : 0));
    }
    (std::make_index_sequence<sizeOf<Properties>>());
}

} // namespace detail

/// The member table of the class.
template <typename Properties>
MemberTable membersOf()
{
    static constexpr auto All = detail::memberArray<Properties>();
    return All;
}

/// For the constructor: gives each field with a default the value of a freshly placed control.
template <typename Properties>
void start(detail::OwnerOf<Properties>& object)
{
    detail::eachProperty<Properties>([&](auto at) {
        using Row = detail::RowAt<Properties, at.value>;
        constexpr const auto& row = detail::rowAt<Properties, at.value>();
        if constexpr (row.isStarted) {
            detail::store<Properties, at.value>(object, detail::valueOf<Row>(row.freshValue));
        }
    });
}

/// The setter of a property.
template <typename Properties, Name RowName>
void set(detail::OwnerOf<Properties>& object, typename detail::RowNamed<Properties, RowName>::Value value)
{
    detail::write<Properties, detail::indexOf<Properties, RowName>()>(object, std::move(value));
}

/// Tells a change that a setter of the control's own has made, and lets it take the row's effect.
template <typename Properties, Name RowName>
void report(detail::OwnerOf<Properties>& object)
{
    detail::changed<Properties, detail::indexOf<Properties, RowName>()>(object);
}

/// Takes the kept properties out of a bag, in the order of the rows.
template <typename Properties>
void read(detail::OwnerOf<Properties>& object, const PropertyBag& bag)
{
    detail::eachProperty<Properties>([&](auto at) { detail::readOne<Properties, at.value>(object, bag); });
}

/// Puts the kept properties into a bag, in the order of the rows.
template <typename Properties>
void write(const detail::OwnerOf<Properties>& object, PropertyBag& bag)
{
    detail::eachProperty<Properties>([&](auto at) { detail::writeOne<Properties, at.value>(object, bag); });
}

/// The same in an order of its own, which names each kept property.
template <typename Properties, Name... Order>
void writeInOrder(const detail::OwnerOf<Properties>& object, PropertyBag& bag)
{
    static_assert(sizeof...(Order) == detail::keptCount<Properties>(), "every kept property has its place");
    (detail::writeOne<Properties, detail::indexOf<Properties, Order>()>(object, bag), ...);
}

} // namespace phial::rows
