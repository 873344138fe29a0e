# Completion of hxahost in PowerShell: run this file in your profile. The program itself says which words may follow;
# where it says none, files may.
Register-ArgumentCompleter -Native -CommandName hxahost, hxahost.exe -ScriptBlock {
  param($word, $line, $cursor)
  $before = @($line.CommandElements | Where-Object { $_.Extent.EndOffset -lt $cursor } | ForEach-Object { "$_" })
  $words = @($before | Select-Object -Skip 1)
  & $before[0] complete @words 2>$null |
    Where-Object { $_ -like "$word*" -and ($word -like '-*' -or $_ -notlike '-*') } |
    ForEach-Object { [System.Management.Automation.CompletionResult]::new($_, $_, 'ParameterValue', $_) }
}
