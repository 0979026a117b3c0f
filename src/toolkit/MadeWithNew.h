#pragma once

#include <cstddef>
#include <new>

#include "AdvancedControlExport.h"

/// Base of a class whose maker says by the way of making an object who deletes it: one made with
/// `new` may be deleted by anybody, as Qt's parents do; one that is a local variable, a member or a
/// base is deleted by the language alone. One thread only.
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
