set -g _HIP_SAVEVERSION = '20.0.547'
set -g HtoA_KickVersion = '6.0'
set -g htoa_kickversion = '7.1.4.1'
set -g JOB = '/proj/kick'
out/a1.parm {
ar_picture	[ 0	locks=0 ]	(	"$HIP/render/a1.$F4.exr"	)
ar_ass_export_enable	[ 0	locks=0 ]	(	"on"	)
ar_ass_file	[ 0	locks=0 ]	(	"$HIP/ass/a1.$F4.ass"	)
}
