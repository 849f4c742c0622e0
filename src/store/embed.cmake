# Puts the SQL of data/ into the library ptk_store: PTK_SQL_<name> for each file.
set(sql_files schema stored_queries trail trail_entry payday profile postgres/schema postgres/trail_functions postgres/trail
  postgres/structure_3 postgres/roles)
foreach(name ${sql_files})
  set(file ${CMAKE_SOURCE_DIR}/data/${name}.sql)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  string(REPLACE "/" "_" variable ${name})
  file(READ ${file} PTK_SQL_${variable})
endforeach()
# A server's order of texts is that of their bytes, and its lower() changes the 26 letters alone, as NOCASE does.
string(REGEX REPLACE "IFNULL\\(([A-Za-z]+), ''''\\) COLLATE NOCASE" "lower(COALESCE(\\1, ''''))" PTK_SQL_server_stored_queries "${PTK_SQL_stored_queries}")
configure_file(${CMAKE_SOURCE_DIR}/src/store/engine/Schema.cpp.in ${CMAKE_BINARY_DIR}/generated/store/Schema.cpp @ONLY)
target_sources(ptk_store PRIVATE ${CMAKE_BINARY_DIR}/generated/store/Schema.cpp)
