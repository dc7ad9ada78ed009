// What the camera reads as the page tools do: settings definitions, texts, JSON.
#pragma once

#include "pages/data/definitions.h"
#include "pages/data/errors.h"
#include "pages/data/json_file.h"
#include "pages/data/looks.h"
#include "pages/data/page_file.h"
#include "pages/data/text_file.h"
#include "pages/data/texts.h"
#include "pages/data/words.h"

namespace sim {

using pages::BadInput;
using pages::custom_color;
using pages::Definitions;
using pages::fact_of_event;
using pages::FieldReader;
using pages::is_page_file;
using pages::joined;
using pages::language_setting;
using pages::load_definitions;
using pages::load_json_object;
using pages::number_of;
using pages::on_one_line;
using pages::one_of;
using pages::option_of_language;
using pages::page_folder;
using pages::page_name;
using pages::parse_json_object;
using pages::Place;
using pages::problem_with;
using pages::read_text_file;
using pages::Setting;
using pages::SettingId;
using pages::SettingKind;
using pages::size_name;
using pages::size_names;
using pages::style_count;
using pages::style_words;
using pages::text_of;
using pages::to_string;
using pages::write_text_file;

} // namespace sim
