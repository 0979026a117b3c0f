#pragma once

#include <cstddef>
#include <new>

#include "AdvancedControlExport.h"
#include "Namespace.h"

namespace AdvancedControl {

/// Records whether an object was made with `new`. Such an object may be deleted, for example by its
/// Qt parent; a local variable, a member or a base class object is destroyed by the language alone.
/// Make the objects of derived classes on one thread only.
class ADVANCED_CONTROL_EXPORT MadeWithNew {
 public:
  static void* operator new(std::size_t size);
  static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
  static void* operator new(std::size_t, void* place) noexcept { return place; }
  static void operator delete(void* object);
  static void operator delete(void* object, const std::nothrow_t&) { operator delete(object); }
  static void operator delete(void*, void*) {}

 protected:
  MadeWithNew();
  ~MadeWithNew() = default;
  MadeWithNew(const MadeWithNew&) = delete;
  MadeWithNew& operator=(const MadeWithNew&) = delete;

  bool IsMadeWithNew() const { return isMadeWithNew_; }

 private:
  const bool isMadeWithNew_;
};

}  // namespace AdvancedControl
