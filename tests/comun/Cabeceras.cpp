// Sin código: este destino existe para que las cabeceras comunes se lean una sola vez (TESMO_PRECOMPILAR).
