#include "simulator/web/access.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cctype>
#include <charconv>
#include <cstring>

#include "simulator/base/data.h"
#include "simulator/web/http.h"

namespace sim {
namespace {

/// The host of "HOST", "HOST:PORT" or "[HOST]:PORT".
std::string host_of(const std::string& place)
{
    if (!place.empty() && place.front() == '[') {
        return place.substr(1, place.find(']') - 1);
    }
    return place.substr(0, place.rfind(':'));
}

/// Cookies belong to a host, whatever its port: each camera of a machine needs a name of its own for them. The port is
/// the one that the browser sees.
std::string cookie_name(const httplib::Request& request)
{
    const std::string place = request.get_header_value("Host");
    const std::size_t begin = place.find_last_not_of("0123456789") + 1;
    return "camera_token_" + (begin > 1 && place[begin - 1] == ':' ? place.substr(begin) : "80");
}

std::string to_lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

/// In a time that doesn't tell how much of the text is right.
bool equal_tokens(const std::string& a, const std::string& b)
{
    unsigned difference = a.size() == b.size() ? 0 : 1;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        difference |= static_cast<unsigned char>(a[i]) ^ static_cast<unsigned char>(b[i]);
    }
    return difference == 0;
}

/// The value of our cookie among "a=b; c=d"; empty when it isn't there.
std::string cookie_of(const httplib::Request& request)
{
    const std::string cookies = "; " + request.get_header_value("Cookie");
    const std::string name = "; " + cookie_name(request) + "=";
    const std::size_t place = cookies.find(name);
    if (place == std::string::npos) {
        return "";
    }
    const std::size_t begin = place + name.size();
    return cookies.substr(begin, cookies.find(';', begin) - begin);
}

bool has_token(const httplib::Request& request, const std::string& token)
{
    return equal_tokens(request.get_header_value("Authorization"), "Bearer " + token) ||
           equal_tokens(cookie_of(request), token) || equal_tokens(request.get_param_value("token"), token);
}

bool is_numeric_address(const std::string& host)
{
    in6_addr address{}; // room for both kinds
    return ::inet_pton(AF_INET, host.c_str(), &address) == 1 || ::inet_pton(AF_INET6, host.c_str(), &address) == 1;
}

} // namespace

ListenAddress parse_listen_address(const std::string& text)
{
    const std::size_t colon = text.rfind(':');
    const std::string host = colon == std::string::npos ? "" : host_of(text);
    const char* begin = text.c_str() + (colon == std::string::npos ? 0 : colon + 1);
    const char* end = text.c_str() + text.size();
    int port = -1;
    const auto result = std::from_chars(begin, end, port);
    const bool is_half_bracketed = colon != std::string::npos && text.front() == '[' && text[colon - 1] != ']';
    if (host.empty() || is_half_bracketed || result.ec != std::errc() || result.ptr != end || port < 0 ||
        port > 65535) {
        throw BadInput("--listen '" + text +
                       "': expected ADDRESS:PORT, such as 127.0.0.1:8080, [::1]:8080 or 0.0.0.0:80");
    }
    if (!is_numeric_address(host) && to_lower(host) != "localhost") {
        throw BadInput("--listen '" + text + "': '" + host +
                       "' is neither an address in numbers, such as 192.168.0.5 or [::1], nor localhost");
    }
    return {host, port};
}

bool is_loopback(const std::string& host)
{
    in_addr address{};
    const bool is_ipv4 = ::inet_pton(AF_INET, host.c_str(), &address) == 1;
    return to_lower(host) == "localhost" || host == "::1" || (is_ipv4 && ntohl(address.s_addr) >> 24 == 127);
}

std::string address_of(const ListenAddress& listen)
{
    const bool is_ipv6 = listen.host.find(':') != std::string::npos;
    const std::string host = listen.host == "0.0.0.0" ? "127.0.0.1" : listen.host == "::" ? "::1" : listen.host;
    return "http://" + (is_ipv6 ? "[" + host + "]" : host) + ":" + std::to_string(listen.port) + "/";
}

void check_access(const httplib::Request& request, const std::optional<std::string>& token)
{
    if (token && !has_token(request, *token)) {
        throw HttpError(401, "this camera needs its token: open /?token=TOKEN, or send 'Authorization: Bearer TOKEN'");
    }
    const std::string host = request.get_header_value("Host");
    if (!token && !is_loopback(host_of(host))) {
        throw HttpError(403,
                        "the camera serves this machine only, under localhost, 127.0.0.1 or [::1], not '" + host + "'");
    }
    // A browser says so of what a page of another site asks for, but a person may follow a link of such a page.
    if (request.get_header_value("Sec-Fetch-Site") == "cross-site" &&
        request.get_header_value("Sec-Fetch-Mode") != "navigate") {
        throw HttpError(403, "pages of other sites may not use this camera");
    }
    const std::string origin = request.get_header_value("Origin");
    if (!origin.empty() && origin != "http://" + host) {
        throw HttpError(403, "pages of '" + origin + "' may not use this camera");
    }
}

bool brings_token_in_address(const httplib::Request& request) { return request.has_param("token"); }

std::string token_cookie(const httplib::Request& request, const std::string& token)
{
    return cookie_name(request) + "=" + token + "; Path=/; HttpOnly; SameSite=Strict";
}

bool is_usable_token(const std::string& token)
{
    const auto is_plain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::strchr("-._~", c) != nullptr;
    };
    return !token.empty() && std::all_of(token.begin(), token.end(), is_plain);
}

} // namespace sim
