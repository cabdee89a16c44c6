#pragma once

#include <string>

// A service slip as the service-call program writes it into Slips.txt: 297 bytes, spelled
// out field by field.
struct Slip {
    std::string key, assigned = "1", unit = "Hours", amount = "2", date = "6/17/2026", time = "3",
                     problem = "Leaking faucet", account = "A2002", name = "Jane Doe",
                     street = "9 Elm St", apt = "Unit 4", city = "Springfield", state = "IL",
                     zip = "62704", telephone = "217-555-0142";
};

inline std::string SlipBytes(const Slip& s) {
    auto pad = [](std::string text, size_t length) {
        text.resize(length, ' ');
        return text;
    };
    return pad("", 10) + pad(s.key, 10) + pad(s.assigned, 2) + pad(s.unit, 6) + pad(s.amount, 2) +
           pad(s.date, 10) + pad(s.time, 2) + pad(s.problem, 30) + pad("", 70) +
           pad(s.account, 20) + pad(s.name, 30) + pad(s.street, 35) + pad(s.apt, 25) +
           pad(s.city, 20) + pad(s.state, 2) + pad(s.zip, 10) + pad(s.telephone, 13);
}

// The slip of `key` for a team, its hours and start slot, and the customer's name.
inline std::string SlipBytes(const std::string& key, const std::string& team,
                             const std::string& hours, const std::string& slot,
                             const std::string& name) {
    Slip s;
    s.key = key;
    s.assigned = team;
    s.amount = hours;
    s.time = slot;
    s.name = name;
    return SlipBytes(s);
}
