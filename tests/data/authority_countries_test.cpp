#include <set>

#include "config/authorities.h"
#include "data/built_data.h"
#include "store/location_files.h"

namespace horavex {
namespace {

struct AuthorityCountries : BuiltData {
    AuthorityCountries() {
        OpenCountryFiles();
        for (std::int64_t number = 1; number <= CountryCount(); ++number) {
            CountryRecord record;
            names.insert(ReadCountry(static_cast<std::int16_t>(number), record));
        }
        CloseCountryFiles();
    }

    std::set<std::string> names;  // of all countries
};

TEST_F(AuthorityCountries, AreCountriesOfTheDatabase) {
    ASSERT_GT(names.size(), 200U);
    for (const Authority& authority : Authorities()) {
        for (const std::string& country : CountriesOf(authority)) {
            EXPECT_EQ(names.count(country), 1U) << authority.key << ": " << country;
        }
    }
}

}  // namespace
}  // namespace horavex
