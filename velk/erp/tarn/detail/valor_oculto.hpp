#pragma once

#include <memory>
#include <utility>

namespace velk::erp::inline v4::tarn::detail {

// The hidden implementation object of a value class: one pointer wide, copied
// deeply. The class declares its special members and defaults them in its
// source file, where T is complete. A moved-from holder is empty, good only
// for destruction or assignment.
template <class T>
class valor_oculto {
public:
    valor_oculto() : value_(std::make_unique<T>()) {}
    explicit valor_oculto(T&& value) : value_(std::make_unique<T>(std::move(value))) {}
    valor_oculto(valor_oculto const& other) : value_(other.value_ ? std::make_unique<T>(*other.value_) : nullptr) {}
    valor_oculto(valor_oculto&& other) noexcept = default;
    valor_oculto& operator=(valor_oculto const& other)
    {
        if (this != &other) {
            value_ = other.value_ ? std::make_unique<T>(*other.value_) : nullptr;
        }
        return *this;
    }
    valor_oculto& operator=(valor_oculto&& other) noexcept = default;
    ~valor_oculto() = default;

    T* operator->() { return value_.get(); }
    T const* operator->() const { return value_.get(); }
    T& operator*() { return *value_; }
    T const& operator*() const { return *value_; }

private:
    std::unique_ptr<T> value_;
};

}  // namespace velk::erp::inline v4::tarn::detail
