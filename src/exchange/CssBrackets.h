#pragma once

#include <string>

namespace tessaly {

/// The brackets that are open, each waiting for its own partner.
class CssBrackets {
  public:
    /// One of ( [ {.
    void open(char bracket) { awaited_ += bracket == '(' ? ')' : bracket == '[' ? ']' : '}'; }

    /// One of ) ] }; false: it closes nothing.
    bool close(char bracket) {
        if (awaited_.empty() || awaited_.back() != bracket) {
            return false;
        }
        awaited_.pop_back();
        return true;
    }

    bool empty() const { return awaited_.empty(); }
    void clear() { awaited_.clear(); }

  private:
    std::string awaited_;
};

} // namespace tessaly
