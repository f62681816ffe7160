set -g _HIP_SAVEVERSION = '19.5.303'
out/arnold1.parm {
ar_picture	[ 0	locks=0 ]	(	"$HIP/render/$OS.$F4.exr"	)
ar_ass_export_enable	[ 0	locks=0 ]	(	"on"	)
ar_ass_file	[ 0	locks=0 ]	(	""	)
ar_ass_file	[ 0	locks=0 ]	(	"$HIP/ass/$OS.$F4.ass"	)
ar_ass_file	[ 0	locks=0 ]	(	"$HIP/other/$OS.$F4.ass"	)
}
