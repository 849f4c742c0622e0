# Puts the SQL of data/ into the library ptk_store.
set(PTK_SCHEMA_SQL ${CMAKE_SOURCE_DIR}/data/schema.sql)
set(PTK_STORED_QUERIES_SQL ${CMAKE_SOURCE_DIR}/data/stored_queries.sql)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PTK_SCHEMA_SQL} ${PTK_STORED_QUERIES_SQL})
file(READ ${PTK_SCHEMA_SQL} PTK_SCHEMA)
file(READ ${PTK_STORED_QUERIES_SQL} PTK_STORED_QUERIES)
configure_file(${CMAKE_SOURCE_DIR}/src/store/Schema.cpp.in ${CMAKE_BINARY_DIR}/generated/store/Schema.cpp @ONLY)
target_sources(ptk_store PRIVATE ${CMAKE_BINARY_DIR}/generated/store/Schema.cpp)
