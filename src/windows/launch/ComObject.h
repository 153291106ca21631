// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

#include "windows/files/Win32.h"

namespace dayvane::launch {

/// Holds an object of another library by one of its interfaces, or none. Needs a ComApartment around it.
template <class Interface>
class ComObject {
 public:
  ComObject() = default;

  /// Takes over what a call has given.
  explicit ComObject(Interface* object) : m_object(object) {}
  ComObject(ComObject&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
  ComObject& operator=(ComObject&& other) noexcept {
    std::swap(m_object, other.m_object);
    return *this;
  }
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;
  ~ComObject() {
    if (m_object != nullptr) m_object->Release();
  }

  /// A new object of a class; none where there is no such class, or no apartment.
  static ComObject Create(const CLSID& classId) {
    void* object = nullptr;
    CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), &object);
    return ComObject(static_cast<Interface*>(object));
  }

  /// The same object by another of its interfaces; none where it has not got it.
  template <class Other>
  ComObject<Other> As() const {
    void* object = nullptr;
    if (m_object != nullptr) m_object->QueryInterface(__uuidof(Other), &object);
    return ComObject<Other>(static_cast<Other*>(object));
  }

  explicit operator bool() const { return m_object != nullptr; }
  Interface* operator->() const { return m_object; }
  Interface* Get() const { return m_object; }

 private:
  Interface* m_object = nullptr;
};

struct TaskMemoryEnd {
  void operator()(void* memory) const { CoTaskMemFree(memory); }
};

/// What the shell has given to be freed.
template <class Thing>
using TaskMemory = std::unique_ptr<Thing, TaskMemoryEnd>;

}  // namespace dayvane::launch
