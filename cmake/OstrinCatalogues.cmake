find_program(MSGFMT_EXECUTABLE msgfmt REQUIRED)

# Compiles PO_DIR/<Table>/<lang>.po into BUNDLE_DIR/Contents/Resources/locale/<lang>/
# LC_MESSAGES/<BundleName>_<Table>.mo, one text domain per bundle and table, and adds the
# catalogues to TARGET.
function(ostrin_add_catalogues target bundle_dir bundle_name po_dir)
  file(GLOB tables LIST_DIRECTORIES true RELATIVE ${po_dir} ${po_dir}/*)
  set(catalogues)
  foreach(table ${tables})
    file(GLOB sources ${po_dir}/${table}/*.po)
    foreach(source ${sources})
      get_filename_component(language ${source} NAME_WE)
      set(folder ${bundle_dir}/Contents/Resources/locale/${language}/LC_MESSAGES)
      set(catalogue ${folder}/${bundle_name}_${table}.mo)
      add_custom_command(OUTPUT ${catalogue}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
        COMMAND ${MSGFMT_EXECUTABLE} --check-format --check-domain -o ${catalogue} ${source}
        DEPENDS ${source}
        VERBATIM)
      list(APPEND catalogues ${catalogue})
    endforeach()
  endforeach()
  target_sources(${target} PRIVATE ${catalogues})
endfunction()
