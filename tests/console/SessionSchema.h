#pragma once

#include <string>

// What docs/session.schema.json finds wrong with a JSON text, for a person; empty when the text fits it.
std::string SchemaComplaint(const std::string& json);

// Expects of a text that zrkhost takes for a session file that it fits the schema. Texts that it refuses are
// left alone.
void ExpectSchemaTakesWhatZrkhostTakes(const std::string& json);
