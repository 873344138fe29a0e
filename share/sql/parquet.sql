-- For DuckDB, after duckdb.sql: Parquet files in a folder for each day, as data lakes read them (fleet/day=2026-11-21/).
COPY (SELECT *, left(collected, 10) AS day FROM objects) TO 'fleet'
(FORMAT parquet, PARTITION_BY (day), OVERWRITE_OR_IGNORE);
