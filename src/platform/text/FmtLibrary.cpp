// The one translation unit of the fmt library. Debian has it as a shared library only; loading that, and the standard library that it
// needs, would cost the console a third of the time that one card takes.
#include <fmt/format-inl.h>

FMT_BEGIN_NAMESPACE
namespace detail {

template auto dragonbox::to_decimal(float x) noexcept -> dragonbox::decimal_fp<float>;
template auto dragonbox::to_decimal(double x) noexcept -> dragonbox::decimal_fp<double>;
template locale_ref::locale_ref(const std::locale& loc);
template auto locale_ref::get<std::locale>() const -> std::locale;
template auto thousands_sep_impl(locale_ref) -> thousands_sep_result<char>;
template auto decimal_point_impl(locale_ref) -> char;
template void buffer<char>::append(const char*, const char*);
template void vformat_to(buffer<char>&, string_view, basic_format_args<buffer_context<char>>, locale_ref);

} // namespace detail
FMT_END_NAMESPACE
