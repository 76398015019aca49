#pragma once

#include <optional>

namespace tessaly {

/// What the preview's engine is asked for, one order at a time: changes that arrive while one is under way
/// are joined into one more. Orders are numbered, over all engines, and what is told of an older one is of no
/// interest.
class PreviewOrders {
  public:
    enum class Kind { RenewStylesheet, LoadPage };
    struct Order {
        Kind kind;
        int number;

        bool operator==(const Order&) const = default;
    };

    /// There is another page, or its stylesheet's file says something else.
    void pageChanged();
    void stylesheetChanged() { wanted_ = true; }

    bool isAnyWanted() const { return wanted_; }

    /// What to ask for now; nothing while an order is under way or when all is shown.
    std::optional<Order> take();

    /// Of a page that could not be loaded, or that has no stylesheet to renew, the next order is to load it.
    /// False: no news, the number is that of an older order.
    bool finished(int number, bool sound);

    /// The engine is gone, and with it the page and the order under way.
    void engineEnded();

    /// Nothing is wanted before the next change.
    void forget() { wanted_ = false; }

    /// What was painted up to now is no longer true.
    void outdate() { trueFrom_ = last_ + 1; }

    /// Whether what an order brought to the screen may be seen.
    bool isTrue(int number) const { return number >= trueFrom_; }

  private:
    bool wanted_ = false;
    bool pageIsSound_ = false;
    int last_ = 0;
    int underWay_ = 0; ///< 0 is none
    int trueFrom_ = 1;
};

} // namespace tessaly
