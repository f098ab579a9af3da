// The pages in their order, one line for each: the file in pages/, the name on the command line, the title in
// English and in Russian. To be included where PAGE is defined; the file X.cpp defines makeXPage().

PAGE(Geometry, "geometry", "Two converters", "Два преобразования")
PAGE(Canvas, "canvas", "Canvas of fragments", "Холст из фрагментов")
PAGE(Curves, "curves", "Curves, rows and grid", "Кривые, дискреты и сетка")
PAGE(Plot, "plot", "Plot with a legend", "График с легендой")
PAGE(Markers, "markers", "Markers", "Маркеры")
PAGE(Overlays, "overlays", "Interval and cursor", "Интервал и курсор")
PAGE(Range, "range", "Range of a record", "Диапазон записи")
PAGE(Frames, "frames", "Frames and separators", "Рамки и разделители")
PAGE(Hodograph, "hodograph", "Hodograph", "Годограф")
PAGE(Plane, "plane", "Plane of figures", "Плоскость фигур")
PAGE(Texts, "texts", "Size of texts", "Размер текста")
PAGE(Typed, "typed", "Texts, dates and times", "Тексты, даты и время")
PAGE(Words, "words", "Words and numbers", "Слова и числа")
