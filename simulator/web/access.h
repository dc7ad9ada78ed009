// Who may use the web server.
#pragma once

#include <optional>
#include <string>

namespace httplib {
struct Request; // its header is a large one, and the start's options need none of it
}

namespace sim {

/// Where the server listens.
struct ListenAddress {
    std::string host = "127.0.0.1"; ///< an IPv6 address without its brackets
    int port = 8080;                ///< 0 for any free one
};

/// "ADDRESS:PORT", an IPv6 address in brackets. Throws BadInput.
ListenAddress parse_listen_address(const std::string& text);

/// Whether only programs on this machine can reach an address.
bool is_loopback(const std::string& host);

/// "http://ADDRESS:PORT/", for a browser on this machine: where the server listens at all addresses, that is one of them.
std::string address_of(const ListenAddress& listen);

/// Throws HttpError for a request that isn't meant for this camera. Without a token the camera serves this machine
/// only, and no page of another site that a browser here shows: the names in Host and Origin must be names of this
/// machine, which also keeps out names that somebody else's name server turns to it. With a token, every request must
/// bring it.
void check_access(const httplib::Request& request, const std::optional<std::string>& token);

/// Whether the request brings the token in its address, as a person's first one does: the answer sets a cookie then,
/// and later ones come without.
bool brings_token_in_address(const httplib::Request& request);
/// The value of the header Set-Cookie for it.
std::string token_cookie(const httplib::Request& request, const std::string& token);

/// Whether a token can be sent as it is in headers, cookies and addresses; an empty one can't.
bool is_usable_token(const std::string& token);

} // namespace sim
