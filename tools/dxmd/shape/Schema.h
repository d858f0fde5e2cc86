#ifndef TOOLS_DXMD_SHAPE_SCHEMA_H
#define TOOLS_DXMD_SHAPE_SCHEMA_H

#include <string>

#include <tools/dxmd/json/JsonFwd.h>
#include <tools/dxmd/shape/Description.h>

namespace dxmd_tool {

/// A JSON Schema (2020-12) that takes what `encode` takes, as far as a schema can say it: whether a text of XML is
/// well-formed, which characters XML has, that `***` is no secret, and what the library refuses it cannot say.
Json schemaOf(const Description& description, const std::string& title, const std::string& summary);

/// The keys for programs, as `dxmd kinds --json` prints them: an object with "keys" and "rules". A key that
/// goes with some texts of a choice has them as "onlyFor". Inside a record that
/// holds itself the keys are not repeated.
Json keysOf(const Description& description);

/// The keys for people, one item of at most 100 columns each.
std::string keysAsText(const Description& description);

}  // namespace dxmd_tool

#endif
