# Copies the shipped files beside the executables. settings.dft is copied only
# when missing there, so that the user's own settings survive a rebuild.
file(GLOB_RECURSE files RELATIVE ${SRC} ${SRC}/*)
foreach(f ${files})
  if(f STREQUAL "settings.dft" AND EXISTS ${DST}/${f})
    continue()
  endif()
  get_filename_component(dir ${DST}/${f} DIRECTORY)
  file(MAKE_DIRECTORY ${dir})
  file(COPY_FILE ${SRC}/${f} ${DST}/${f} ONLY_IF_DIFFERENT)
endforeach()
