#pragma once

#include <cstddef>
#include <new>
#include <vector>

#include "model/per_variable.h"
#include "platform/memory.h"
#include "runtime/long.h"

namespace tavimor {

/// Memory for tables. It comes as zeros, so that an element that is made without a value is one already.
template <class T>
struct TableAllocator {
  using value_type = T;

  TableAllocator() = default;
  template <class U>
  TableAllocator(const TableAllocator<U>&) {}

  T* allocate(std::size_t count) {
    void* memory = zeroedMemory(count * sizeof(T));
    if (memory == nullptr) throw std::bad_alloc();
    return static_cast<T*>(memory);
  }
  void deallocate(T* memory, std::size_t count) { releaseMemory(memory, count * sizeof(T)); }

  void construct(T* /*element*/) {}
  void construct(T* element, const T& value) { *element = value; }
  bool operator==(const TableAllocator&) const = default;
};

/// A table of doubles over four axes. Its bounds are last indices: axis k runs from 0 to last()[k], so that an axis
/// whose last index is 0 has extent 1. In memory the first index is the fastest.
/// Errors: SubscriptOutOfRange for an index or a bound below 0 and for an index beyond its bound; OutOfMemory for
/// bounds whose elements no memory holds.
class Table4 {
 public:
  Table4() { redim({0, 0, 0, 0}); }

  /// New bounds; every element becomes 0.
  void redim(const PerVariable<Long>& last);

  /// New bounds; an element whose indices lie within the old and the new ones keeps its value, every other one is 0.
  void resizeKeeping(const PerVariable<Long>& last);

  const PerVariable<Long>& last() const { return last_; }
  std::size_t extent(int k) const { return static_cast<std::size_t>(last_[k]) + 1; }
  std::size_t size() const { return elements_.size(); }

  /// The distance in memory between neighbours along axis k.
  std::size_t stride(int k) const;

  double& operator()(Long i0, Long i1, Long i2, Long i3) { return elements_[offset({i0, i1, i2, i3})]; }
  double operator()(Long i0, Long i1, Long i2, Long i3) const { return elements_[offset({i0, i1, i2, i3})]; }
  double& operator()(const PerVariable<Long>& index) { return elements_[offset(index)]; }
  double operator()(const PerVariable<Long>& index) const { return elements_[offset(index)]; }

  double* data() { return elements_.data(); }
  const double* data() const { return elements_.data(); }

 private:
  using Elements = std::vector<double, TableAllocator<double>>;

  std::size_t offset(const PerVariable<Long>& index) const;

  PerVariable<Long> last_{};
  Elements elements_;
};

/// The elements of a table with these bounds. Errors: as Table4.
std::size_t tableSize(const PerVariable<Long>& last);

}  // namespace tavimor
