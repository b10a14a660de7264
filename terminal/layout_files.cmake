# The layout files of the windows as texts of the program, by the names of their forms.
file(GLOB layouts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/desktop/forms/*.ui)
set(LAYOUT_TEXTS "")
foreach(layout ${layouts})
    get_filename_component(form ${layout} NAME_WE)
    file(READ ${layout} text)
    string(APPEND LAYOUT_TEXTS "    {\"${form}\", R\"layout(${text})layout\"},\n")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${layout})
endforeach()
configure_file(${CMAKE_CURRENT_SOURCE_DIR}/forms/layout_files.cpp.in
               ${CMAKE_CURRENT_BINARY_DIR}/layout_files.cpp @ONLY)
