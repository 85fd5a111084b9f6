#pragma once

#include "app/cls_App.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "results/cls_DataScores.h"
#include "support/AppSession.h"

#include <string>
#include <vector>

namespace phial
{

/// What the tests of the result lists have in common: lists made of a few words, and read as a few words.
class ResultsTest : public test::AppSession
{
protected:
    /// Adds an entry under that name; gives what `ADD` gives.
    static Variant add(cls_DataScores& list, StringView name, double points, Moment moment = {})
    {
        return list.ADD(points, 100, u"Salze", nullptr, {}, {}, name, moment);
    }

    /// The names in the order of their slots.
    static std::vector<String> names(cls_DataScores& list)
    {
        std::vector<String> result;
        for (std::int32_t slot = 1; slot <= list.COUNT(); ++slot) {
            result.push_back(list.ITEM(slot)->SCREENNAME());
        }
        return result;
    }

    static std::vector<std::int32_t> ranks(cls_DataScores& list)
    {
        std::vector<std::int32_t> result;
        for (std::int32_t slot = 1; slot <= list.COUNT(); ++slot) {
            result.push_back(list.ITEM(slot)->RANK());
        }
        return result;
    }

    /// Entries "1", "2" and so on, each with the points given.
    static void fill(cls_DataScores& list, std::initializer_list<double> points)
    {
        std::int32_t number = 0;
        for (const double each : points) {
            add(list, Variant(++number).toText(), each);
        }
    }
};

} // namespace phial
