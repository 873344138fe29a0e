-- Reads fleet.jsonl from the working directory, each time it is asked; then views.sql.
CREATE VIEW objects AS
SELECT machine, regexp_replace(left("time", 14), '(....)(..)(..)(..)(..)(..)', '\1-\2-\3 \4:\5:\6') AS collected,
  class, path, properties
FROM read_json('fleet.jsonl', format = 'newline_delimited', columns = {machine: 'VARCHAR', "time": 'VARCHAR',
  class: 'VARCHAR', path: 'VARCHAR', properties: 'JSON'})
WHERE class IN ('machine', 'incident', 'controller', 'logicalDrive', 'disk', 'damagedFile');
